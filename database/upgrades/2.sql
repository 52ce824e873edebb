-- From version 1 of the tables to version 2. Databases of version 1 may have some of what this script adds; it takes up
-- what is missing. Upgrades an embedded database too, where the program itself sees to the transaction.
SET XACT_ABORT ON
IF NOT EXISTS (SELECT 1 FROM dbo.SchemaInfo WHERE Version = 1)
BEGIN
  ;THROW 50001, N'The tables of this database are not of version 1. Nothing has been changed.', 1
END
BEGIN TRANSACTION
GO

-- The corrections of the stock.
IF OBJECT_ID(N'dbo.StockCorrections') IS NULL
CREATE TABLE dbo.StockCorrections (
  Id int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  KalaCode int NOT NULL REFERENCES dbo.kala (Code),
  CorrectionDate nvarchar(10) NOT NULL,
  Quantity decimal(18,3) NOT NULL,
  Sharh nvarchar(200) NULL,
  UserCode int NOT NULL REFERENCES dbo.users (Code),
  RegisteredAt datetime NOT NULL
)
GO
DROP INDEX IF EXISTS IX_StockCorrections_Kala ON dbo.StockCorrections
GO
CREATE INDEX IX_StockCorrections_Kala ON dbo.StockCorrections (KalaCode, CorrectionDate)
GO

-- Of detail accounts that share a unique code the first keeps it; the others get the next ones of their kind.
UPDATE dbo.AccDetails
SET UniqueCode =
  ISNULL((SELECT MAX(used.UniqueCode) FROM dbo.AccDetails AS used
          WHERE used.UniqueCode BETWEEN AccDetails.[Type] * 1000000 AND AccDetails.[Type] * 1000000 + 999999),
         AccDetails.[Type] * 1000000)
  + (SELECT COUNT(*) FROM dbo.AccDetails AS twin
     WHERE twin.[Type] = AccDetails.[Type] AND twin.Code <= AccDetails.Code AND twin.UniqueCode <> 0
       AND EXISTS (SELECT 1 FROM dbo.AccDetails AS holder
                   WHERE holder.UniqueCode = twin.UniqueCode
                     AND (holder.[Type] < twin.[Type]
                          OR (holder.[Type] = twin.[Type] AND holder.Code < twin.Code))))
WHERE UniqueCode <> 0
  AND EXISTS (SELECT 1 FROM dbo.AccDetails AS holder
              WHERE holder.UniqueCode = AccDetails.UniqueCode
                AND (holder.[Type] < AccDetails.[Type]
                     OR (holder.[Type] = AccDetails.[Type] AND holder.Code < AccDetails.Code)))
GO
DROP INDEX IF EXISTS UX_AccDetails_UniqueCode ON dbo.AccDetails
GO
CREATE UNIQUE INDEX UX_AccDetails_UniqueCode ON dbo.AccDetails (UniqueCode) WHERE UniqueCode <> 0
GO

-- Of colours that are there more than once the first stays; the tags of the others take it.
UPDATE dbo.TagS
SET color_code = (SELECT MIN(same.code) FROM dbo.colors AS same
                  INNER JOIN dbo.colors AS own ON own.cl_code = same.cl_code
                  WHERE own.code = TagS.color_code)
WHERE color_code IN (SELECT later.code FROM dbo.colors AS later
                     INNER JOIN dbo.colors AS same ON same.cl_code = later.cl_code
                     WHERE same.code < later.code)
GO
DELETE FROM dbo.colors
WHERE EXISTS (SELECT 1 FROM dbo.colors AS same WHERE same.cl_code = colors.cl_code AND same.code < colors.code)
GO
DROP INDEX IF EXISTS UX_colors_cl_code ON dbo.colors
GO
CREATE UNIQUE INDEX UX_colors_cl_code ON dbo.colors (cl_code)
GO

-- What the chart of the sample shop has had since; a chart of one's own stays as it is.
INSERT INTO dbo.AutoVoucherSetting (Operation, Total, Assistant, Detail)
SELECT N'بهای تمام شده کالای فروش رفته', TotalCode, Code, 0 FROM dbo.AccAssistants
WHERE TotalCode = 701 AND Code = 1 AND Name = N'بهای کالای فروش‌رفته'
  AND NOT EXISTS (SELECT 1 FROM dbo.AutoVoucherSetting WHERE Operation = N'بهای تمام شده کالای فروش رفته')
GO
INSERT INTO dbo.AccTotals (Code, Name, GroupCode, DetailType, Nature, Properties)
SELECT 7, N'هزینه‌های تعمیر و نگهداری', GroupCode, 4, 1, 4 FROM dbo.AccTotals
WHERE Code = 801 AND GroupCode = 8 AND Name = N'هزینه‌های حقوق و دستمزد'
  AND NOT EXISTS (SELECT 1 FROM dbo.AccTotals WHERE Code = 7)
GO
INSERT INTO dbo.AccAssistants (TotalCode, Code, Name)
SELECT t.Code, a.Code, a.Name
FROM (SELECT 1 AS Code, N'تعمیر ساختمان' AS Name
      UNION ALL SELECT 2, N'تعمیر وسایل نقلیه'
      UNION ALL SELECT 3, N'تعمیر تجهیزات') AS a
INNER JOIN dbo.AccTotals AS t ON t.Code = 7 AND t.Name = N'هزینه‌های تعمیر و نگهداری'
WHERE NOT EXISTS (SELECT 1 FROM dbo.AccAssistants WHERE TotalCode = 7)
GO

UPDATE dbo.SchemaInfo SET Version = 2 WHERE Version = 1
GO
COMMIT TRANSACTION
GO
