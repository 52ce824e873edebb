-- The functions of the accounting database, for SQL Server 2017 and later. Run after schema.sql; may be run again.

-- The title of an expense center; NULL where there is none of the code.
CREATE OR ALTER FUNCTION dbo.GetExpCenterName (@Code int)
RETURNS nvarchar(100)
AS
BEGIN
  RETURN (SELECT Title FROM dbo.ExpenseCenters WHERE Code = @Code)
END
GO

-- A free unique code for a new detail account of a kind. Each kind has a million numbers, beginning with the kind
-- itself. The number is the first behind the highest one in use that nobody holds a lock on; where those have run out,
-- the smallest free one; 0 where there is none. Locks of all kinds count, because a number serves one account only.
CREATE OR ALTER FUNCTION dbo.GetUinqueCode_FNC (@DetailType int)
RETURNS int
AS
BEGIN
  IF @DetailType IS NULL OR @DetailType < 0 OR @DetailType > 99
    RETURN 0

  DECLARE @First int = @DetailType * 1000000 + 1
  DECLARE @Last int = @DetailType * 1000000 + 999999
  DECLARE @Locked TABLE (Code int NOT NULL PRIMARY KEY)
  INSERT INTO @Locked (Code)
  SELECT DISTINCT TRY_CAST(Code AS int)
  FROM dbo.CodeLocks
  WHERE SoftwarePart BETWEEN 1270000 AND 1270099 AND ExpiresAt > GETUTCDATE() AND TRY_CAST(Code AS int) IS NOT NULL

  DECLARE @Code int
  SELECT @Code = ISNULL(MAX(UniqueCode), @First - 1) + 1
  FROM dbo.AccDetails
  WHERE UniqueCode BETWEEN @First AND @Last
  WHILE @Code IN (SELECT Code FROM @Locked)
    SET @Code = @Code + 1
  IF @Code <= @Last
    RETURN @Code

  -- The smallest free number is the first one, or stands right behind a used or locked one.
  SELECT @Code = MIN(Candidate)
  FROM (SELECT @First AS Candidate
        UNION ALL
        SELECT UniqueCode + 1 FROM dbo.AccDetails WHERE UniqueCode BETWEEN @First AND @Last - 1
        UNION ALL
        SELECT Code + 1 FROM @Locked WHERE Code BETWEEN @First AND @Last - 1) AS candidates
  WHERE NOT EXISTS (SELECT 1 FROM dbo.AccDetails AS used WHERE used.UniqueCode = Candidate)
    AND NOT EXISTS (SELECT 1 FROM @Locked AS locked WHERE locked.Code = Candidate)
  RETURN ISNULL(@Code, 0)
END
GO

-- The ids of the categories beneath one, in ascending order with commas between; @Id 0 is the root. @AllLevels 0 gives
-- the direct children, 1 everything beneath; @Parenthesised 1 puts the list in parentheses, so that it can follow IN;
-- with nothing beneath it is then ().
CREATE OR ALTER FUNCTION dbo.Category_SubNodes (@Id int, @AllLevels bit, @Parenthesised bit)
RETURNS nvarchar(max)
AS
BEGIN
  DECLARE @Found TABLE (id int NOT NULL PRIMARY KEY)
  INSERT INTO @Found (id)
  SELECT id FROM dbo.category
  WHERE @Id >= 0 AND parent_code BETWEEN CASE WHEN @Id = 0 THEN -2147483648 ELSE @Id END AND @Id
  DECLARE @Added int = @@ROWCOUNT
  WHILE @AllLevels = 1 AND @Added > 0
  BEGIN
    INSERT INTO @Found (id)
    SELECT id FROM dbo.category
    WHERE parent_code IN (SELECT id FROM @Found) AND id NOT IN (SELECT id FROM @Found)
    SET @Added = @@ROWCOUNT
  END

  DECLARE @List nvarchar(max)
  SELECT @List = STRING_AGG(CAST(id AS nvarchar(max)), N',') WITHIN GROUP (ORDER BY id) FROM @Found
  SET @List = ISNULL(@List, N'')
  RETURN CASE WHEN @Parenthesised = 1 THEN N'(' + @List + N')' ELSE @List END
END
GO
