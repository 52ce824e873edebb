-- The tables of the accounting database: SQL Server 2017 and later, in a database of collation Persian_100_CI_AS.
-- One statement to a batch. Tables come first, then indexes, then views, so that a large database can be filled
-- between the tables and the indexes. functions.sql is run after this file on SQL Server.
--
-- Codes of the chart of accounts are whole numbers and are shown with leading zeros: totals and assistants in three
-- digits, details in six (unique codes in eight), expense centers in four. Dates of documents are texts yyyy/mm/dd in
-- the calendar of the host's settings and compare as texts.

CREATE TABLE dbo.SchemaInfo (
  Version int NOT NULL PRIMARY KEY
)
GO
INSERT INTO dbo.SchemaInfo (Version) VALUES (1)
GO

-- People and settings of the program itself.

CREATE TABLE dbo.users (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL,
  LoginName nvarchar(50) NOT NULL,
  Active bit NOT NULL DEFAULT 1
)
GO
-- UserCode 0 holds what is the same for everybody.
CREATE TABLE dbo.Settings (
  UserCode int NOT NULL,
  Name nvarchar(100) NOT NULL,
  Value nvarchar(max) NULL,
  PRIMARY KEY (UserCode, Name)
)
GO
-- Codes that a user is working on. A row whose ExpiresAt (UTC) has passed holds nothing: its program has died. Code
-- is written without leading zeros.
CREATE TABLE dbo.CodeLocks (
  SoftwarePart int NOT NULL,
  Code nvarchar(50) NOT NULL,
  UserCode int NOT NULL,
  UserName nvarchar(100) NOT NULL,
  Machine nvarchar(100) NOT NULL,
  ProcessId bigint NOT NULL,
  OwnerId nvarchar(64) NOT NULL,
  TakenAt datetime NOT NULL,
  ExpiresAt datetime NOT NULL,
  PRIMARY KEY (SoftwarePart, Code)
)
GO

-- Currencies. Code 1 is the base currency, at the rate of 1.

CREATE TABLE dbo.AccCurrency (
  CurCode int NOT NULL PRIMARY KEY CHECK (CurCode > 0),
  CurTitle nvarchar(50) NOT NULL,
  CurCountry nvarchar(50) NOT NULL,
  CurSymbol nvarchar(10) NULL,
  CurDecimals int NOT NULL DEFAULT 0
)
GO
-- CrRateCode is the order of entry: of two rates on one date the later one counts.
CREATE TABLE dbo.AccCrConvRate (
  CrRateCode int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  AccCurrencyID int NOT NULL REFERENCES dbo.AccCurrency (CurCode),
  CrRateDate nvarchar(10) NOT NULL,
  CrRateConvRate decimal(19,9) NOT NULL
)
GO

-- Chart of accounts.

-- Type is the kind of group that the pickers filter by: 1 assets, 2 liabilities, 3 equity, 4 incomes, 5 costs, 6 cost
-- of sales, 7 memorandum.
CREATE TABLE dbo.AccGroups (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL,
  [Type] int NOT NULL
)
GO
-- Kinds of detail accounts, the values of AccDetails.[Type] and of AccTotals.DetailType. 0 is a total without details;
-- 5 is incomes (3) under assistant 1 and costs (4) under the others; 10 takes unique codes of all kinds.
CREATE TABLE dbo.AccDetailTypes (
  Code int NOT NULL PRIMARY KEY,
  Name nvarchar(100) NOT NULL
)
GO
-- DetailType plus 128 says that a detail account must be given. Nature: 0 either, 1 debtor, 2 creditor. Properties is a
-- set of bits: 1 currency, 2 quantity, 4 expense center, 8 follow-up, 16 control of nature.
CREATE TABLE dbo.AccTotals (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0 AND Code <= 999),
  Name nvarchar(100) NOT NULL,
  GroupCode int NOT NULL REFERENCES dbo.AccGroups (Code),
  DetailType int NOT NULL DEFAULT 0,
  Nature int NOT NULL DEFAULT 0,
  Properties int NOT NULL DEFAULT 0
)
GO
CREATE TABLE dbo.AccAssistants (
  TotalCode int NOT NULL REFERENCES dbo.AccTotals (Code),
  Code int NOT NULL CHECK (Code > 0 AND Code <= 999),
  Name nvarchar(100) NOT NULL,
  PRIMARY KEY (TotalCode, Code)
)
GO
-- UniqueCode 0 is an account that has not got its number yet.
CREATE TABLE dbo.AccDetails (
  [Type] int NOT NULL REFERENCES dbo.AccDetailTypes (Code),
  Code int NOT NULL CHECK (Code > 0),
  Name nvarchar(200) NOT NULL,
  CurrCode int NULL,
  UniqueCode int NOT NULL DEFAULT 0,
  Active bit NOT NULL DEFAULT 1,
  PRIMARY KEY ([Type], Code)
)
GO
-- Expense centers and the four levels that they are reported by.
CREATE TABLE dbo.ExpenseLevel1 (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0 AND Code <= 999),
  Title nvarchar(100) NOT NULL
)
GO
CREATE TABLE dbo.ExpenseLevel2 (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0 AND Code <= 999),
  Title nvarchar(100) NOT NULL
)
GO
CREATE TABLE dbo.ExpenseLevel3 (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0 AND Code <= 999),
  Title nvarchar(100) NOT NULL
)
GO
CREATE TABLE dbo.ExpenseLevel4 (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0 AND Code <= 9999),
  Title nvarchar(100) NOT NULL
)
GO
CREATE TABLE dbo.ExpenseCenters (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0 AND Code <= 9999),
  Title nvarchar(100) NOT NULL,
  Level1Code int NULL REFERENCES dbo.ExpenseLevel1 (Code),
  Level2Code int NULL REFERENCES dbo.ExpenseLevel2 (Code),
  Level3Code int NULL REFERENCES dbo.ExpenseLevel3 (Code),
  Level4Code int NULL REFERENCES dbo.ExpenseLevel4 (Code),
  Active bit NOT NULL DEFAULT 1
)
GO

-- What the entity selectors choose from. Every table of this section has the key Code.

CREATE TABLE dbo.PersonGroups (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL
)
GO
-- Name is what the person is called in lists (surname or trade name); SearchName is FullName as a Persian reader
-- compares it.
CREATE TABLE dbo.Persons (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(200) NOT NULL,
  FullName nvarchar(200) NOT NULL,
  SearchName AS CAST(LOWER(REPLACE(REPLACE(TRANSLATE(FullName COLLATE Latin1_General_BIN2, N'يىك۰۱۲۳۴۵۶۷۸۹٠١٢٣٤٥٦٧٨٩', N'ییک01234567890123456789'), NCHAR(8204), N''), NCHAR(1600), N'')) AS nvarchar(200)) COLLATE Latin1_General_BIN2 PERSISTED,
  NationalCode nvarchar(11) NULL,
  Phone nvarchar(20) NULL,
  City nvarchar(50) NULL,
  Address nvarchar(300) NULL,
  GroupCode int NULL REFERENCES dbo.PersonGroups (Code),
  Balance money NOT NULL DEFAULT 0,
  tags nvarchar(max) NULL,
  Active bit NOT NULL DEFAULT 1
)
GO
CREATE TABLE dbo.KalaGroups (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL
)
GO
CREATE TABLE dbo.kala (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(200) NOT NULL,
  SearchName AS CAST(LOWER(REPLACE(REPLACE(TRANSLATE(Name COLLATE Latin1_General_BIN2, N'يىك۰۱۲۳۴۵۶۷۸۹٠١٢٣٤٥٦٧٨٩', N'ییک01234567890123456789'), NCHAR(8204), N''), NCHAR(1600), N'')) AS nvarchar(200)) COLLATE Latin1_General_BIN2 PERSISTED,
  Barcode nvarchar(20) NULL,
  UnitName nvarchar(30) NOT NULL,
  GroupCode int NULL REFERENCES dbo.KalaGroups (Code),
  Price money NOT NULL DEFAULT 0,
  Stock decimal(18,3) NOT NULL DEFAULT 0,
  tags nvarchar(max) NULL,
  Active bit NOT NULL DEFAULT 1
)
GO
CREATE TABLE dbo.Banks (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL
)
GO
-- Shobe is the branch, SH_H the account number.
CREATE TABLE dbo.BankAccounts (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL,
  Shobe nvarchar(100) NOT NULL,
  SH_H nvarchar(30) NOT NULL,
  BankCode int NOT NULL REFERENCES dbo.Banks (Code),
  CurrCode int NOT NULL DEFAULT 1 REFERENCES dbo.AccCurrency (CurCode),
  Active bit NOT NULL DEFAULT 1
)
GO
CREATE TABLE dbo.CashDeskGroups (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL
)
GO
CREATE TABLE dbo.CashDesks (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL,
  GroupCode int NOT NULL REFERENCES dbo.CashDeskGroups (Code),
  Active bit NOT NULL DEFAULT 1
)
GO
CREATE TABLE dbo.StoreGroups (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL
)
GO
CREATE TABLE dbo.Stores (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL,
  GroupCode int NOT NULL REFERENCES dbo.StoreGroups (Code),
  Active bit NOT NULL DEFAULT 1
)
GO
CREATE TABLE dbo.EmployeeGroups (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL
)
GO
CREATE TABLE dbo.Employees (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL,
  FullName nvarchar(200) NOT NULL,
  NationalCode nvarchar(11) NULL,
  GroupCode int NOT NULL REFERENCES dbo.EmployeeGroups (Code),
  Active bit NOT NULL DEFAULT 1
)
GO
CREATE TABLE dbo.Incomes (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL,
  Active bit NOT NULL DEFAULT 1
)
GO
CREATE TABLE dbo.Costs (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL,
  Active bit NOT NULL DEFAULT 1
)
GO
CREATE TABLE dbo.PettyCash (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL,
  Active bit NOT NULL DEFAULT 1
)
GO
CREATE TABLE dbo.Assets (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL,
  PurchaseDate nvarchar(10) NULL,
  Value money NOT NULL DEFAULT 0,
  Active bit NOT NULL DEFAULT 1
)
GO
CREATE TABLE dbo.WorkshopGroups (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL
)
GO
CREATE TABLE dbo.Workshops (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL,
  GroupCode int NOT NULL REFERENCES dbo.WorkshopGroups (Code),
  Active bit NOT NULL DEFAULT 1
)
GO
CREATE TABLE dbo.Countries (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  TitleCountry nvarchar(100) NOT NULL
)
GO
CREATE TABLE dbo.Provinces (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL
)
GO
CREATE TABLE dbo.Cities (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL,
  ProvinceCode int NOT NULL REFERENCES dbo.Provinces (Code)
)
GO
CREATE TABLE dbo.Districts (
  Code int NOT NULL PRIMARY KEY CHECK (Code > 0),
  Name nvarchar(100) NOT NULL,
  CityCode int NOT NULL REFERENCES dbo.Cities (Code)
)
GO

-- Tags and categories. A tags column is NULL or holds the codes of the record's tags, each followed by a comma, with
-- one more comma in front.

-- cl_code is the colour by name or as $00BBGGRR; the pictures are PNG, for a tag on all and on some records.
CREATE TABLE dbo.colors (
  code int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  cl_code nvarchar(50) NOT NULL,
  [h-img] varbinary(max) NULL,
  [l-img] varbinary(max) NULL
)
GO
CREATE TABLE dbo.TagS (
  Code int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  Name nvarchar(50) NOT NULL,
  color_code int NOT NULL REFERENCES dbo.colors (code)
)
GO
-- parent_code 0 is the top level. path holds the ids from the top level down to the category, between commas.
CREATE TABLE dbo.category (
  id int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  parent_code int NOT NULL DEFAULT 0,
  name nvarchar(100) NOT NULL,
  path nvarchar(400) NULL,
  CHECK (parent_code <> id)
)
GO
CREATE TABLE dbo.DefaultUserCategory (
  user_code int NOT NULL REFERENCES dbo.users (Code),
  Code_category int NOT NULL REFERENCES dbo.category (id),
  Person bit NOT NULL DEFAULT 0,
  Good bit NOT NULL DEFAULT 0,
  PRIMARY KEY (user_code, Code_category)
)
GO
CREATE TABLE dbo.kala_category (
  kala_code int NOT NULL PRIMARY KEY REFERENCES dbo.kala (Code),
  category_code int NOT NULL REFERENCES dbo.category (id)
)
GO
CREATE TABLE dbo.Person_category (
  person_code int NOT NULL PRIMARY KEY REFERENCES dbo.Persons (Code),
  category_code int NOT NULL REFERENCES dbo.category (id)
)
GO
-- GRPCode: 1 goods, 2 persons. Id_Pic is the code of the record.
CREATE TABLE dbo.PhotoGallery (
  Id int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  GRPCode int NOT NULL,
  Id_Pic int NOT NULL,
  address nvarchar(400) NULL,
  name nvarchar(200) NOT NULL,
  picture varbinary(max) NULL
)
GO

-- Vouchers, and the operations that give rise to them.

CREATE TABLE dbo.FiscalYears (
  Code int NOT NULL PRIMARY KEY,
  Title nvarchar(50) NOT NULL,
  FromDate nvarchar(10) NOT NULL,
  ToDate nvarchar(10) NOT NULL,
  Closed bit NOT NULL DEFAULT 0
)
GO
-- Kind: 1 by hand, 2 automatic, 3 opening, 4 closing.
CREATE TABLE dbo.Sanad (
  Id int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  FiscalYear int NOT NULL REFERENCES dbo.FiscalYears (Code),
  Number int NOT NULL,
  VoucherDate nvarchar(10) NOT NULL,
  RegisteredAt datetime NOT NULL,
  Kind int NOT NULL DEFAULT 1,
  Title nvarchar(200) NOT NULL,
  UserCode int NOT NULL REFERENCES dbo.users (Code),
  Confirmed bit NOT NULL DEFAULT 0,
  UNIQUE (FiscalYear, Number)
)
GO
-- A row debits (Bed) or credits (Bes), never both. Tafzili is the detail account, Tafsili2 the expense center; 0 is none.
CREATE TABLE dbo.Sanad_Detail (
  Id int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  SanadId int NOT NULL REFERENCES dbo.Sanad (Id),
  RowNo int NOT NULL,
  Kol int NOT NULL REFERENCES dbo.AccTotals (Code),
  Moin int NOT NULL DEFAULT 0,
  Tafzili int NOT NULL DEFAULT 0,
  Tafsili2 int NOT NULL DEFAULT 0,
  Sharh nvarchar(300) NULL,
  Bed money NOT NULL DEFAULT 0,
  Bes money NOT NULL DEFAULT 0,
  CurrCode int NOT NULL DEFAULT 1 REFERENCES dbo.AccCurrency (CurCode),
  CurrRate decimal(19,9) NOT NULL DEFAULT 1,
  CurrAmount money NOT NULL DEFAULT 0,
  UNIQUE (SanadId, RowNo)
)
GO
-- Kind: 1 sale, 2 purchase. A trade without a SanadId still lacks its voucher; NeedsRefresh says that the stock ledger
-- was corrected after the voucher.
CREATE TABLE dbo.Trades (
  Id int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  Kind int NOT NULL,
  FiscalYear int NOT NULL REFERENCES dbo.FiscalYears (Code),
  Number int NOT NULL,
  TradeDate nvarchar(10) NOT NULL,
  PersonCode int NOT NULL REFERENCES dbo.Persons (Code),
  StoreCode int NOT NULL REFERENCES dbo.Stores (Code),
  Amount money NOT NULL,
  SanadId int NULL REFERENCES dbo.Sanad (Id),
  NeedsRefresh bit NOT NULL DEFAULT 0,
  UNIQUE (Kind, FiscalYear, Number)
)
GO
CREATE TABLE dbo.TradeRows (
  TradeId int NOT NULL REFERENCES dbo.Trades (Id),
  RowNo int NOT NULL,
  KalaCode int NOT NULL REFERENCES dbo.kala (Code),
  Quantity decimal(18,3) NOT NULL,
  Price money NOT NULL,
  Amount money NOT NULL,
  PRIMARY KEY (TradeId, RowNo)
)
GO
CREATE TABLE dbo.AutoVoucherSetting (
  Id int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  Operation nvarchar(100) NOT NULL,
  Total int NOT NULL,
  Assistant int NOT NULL DEFAULT 0,
  Detail int NOT NULL DEFAULT 0
)
GO
CREATE TABLE dbo.FinancialReport (
  Id int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  Title nvarchar(100) NOT NULL,
  Kol int NOT NULL DEFAULT 0,
  Moin int NOT NULL DEFAULT 0,
  Tafsili int NOT NULL DEFAULT 0
)
GO
CREATE TABLE dbo.FinancialReportDetail (
  Id int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  ReportId int NOT NULL REFERENCES dbo.FinancialReport (Id),
  RowNo int NOT NULL,
  Title nvarchar(100) NOT NULL,
  Kol int NOT NULL DEFAULT 0,
  Moin int NOT NULL DEFAULT 0,
  Tafsili int NOT NULL DEFAULT 0,
  UNIQUE (ReportId, RowNo)
)
GO
CREATE TABLE dbo.Recruitment (
  Id int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  EmployeeCode int NOT NULL REFERENCES dbo.Employees (Code),
  FromDate nvarchar(10) NOT NULL,
  BaseSalary money NOT NULL,
  Per_Kol int NOT NULL DEFAULT 0,
  Per_Moin int NOT NULL DEFAULT 0,
  Per_Tafsili int NOT NULL DEFAULT 0
)
GO
CREATE TABLE dbo.Deduction (
  Id int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  Title nvarchar(100) NOT NULL,
  [Percent] decimal(9,3) NOT NULL DEFAULT 0,
  Kol int NOT NULL DEFAULT 0,
  Moin int NOT NULL DEFAULT 0,
  Tafzili int NOT NULL DEFAULT 0
)
GO
-- Balances with which a fiscal year opens.
CREATE TABLE dbo.fiscal (
  Id int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  FiscalYear int NOT NULL REFERENCES dbo.FiscalYears (Code),
  Kol int NOT NULL,
  Moin int NOT NULL DEFAULT 0,
  Tafzili int NOT NULL DEFAULT 0,
  Bed money NOT NULL DEFAULT 0,
  Bes money NOT NULL DEFAULT 0
)
GO

-- Indexes: what lists are ordered by, each with the key behind it, and what is looked up.

CREATE INDEX IX_kala_Name ON dbo.kala (Name, Code)
GO
CREATE INDEX IX_kala_SearchName ON dbo.kala (SearchName, Code)
GO
CREATE INDEX IX_kala_Barcode ON dbo.kala (Barcode, Code)
GO
CREATE INDEX IX_kala_UnitName ON dbo.kala (UnitName, Code)
GO
CREATE INDEX IX_kala_GroupCode ON dbo.kala (GroupCode, Code)
GO
CREATE INDEX IX_kala_Price ON dbo.kala (Price, Code)
GO
CREATE INDEX IX_kala_Stock ON dbo.kala (Stock, Code)
GO
CREATE INDEX IX_Persons_Name ON dbo.Persons (Name, Code)
GO
CREATE INDEX IX_Persons_FullName ON dbo.Persons (FullName, Code)
GO
CREATE INDEX IX_Persons_SearchName ON dbo.Persons (SearchName, Code)
GO
CREATE INDEX IX_Persons_NationalCode ON dbo.Persons (NationalCode, Code)
GO
CREATE INDEX IX_Persons_Phone ON dbo.Persons (Phone, Code)
GO
CREATE INDEX IX_Persons_City ON dbo.Persons (City, Code)
GO
CREATE INDEX IX_Persons_GroupCode ON dbo.Persons (GroupCode, Code)
GO
CREATE INDEX IX_Persons_Balance ON dbo.Persons (Balance, Code)
GO
CREATE INDEX IX_AccCrConvRate_Date ON dbo.AccCrConvRate (AccCurrencyID, CrRateDate, CrRateCode)
GO
CREATE INDEX IX_AccTotals_GroupCode ON dbo.AccTotals (GroupCode)
GO
CREATE INDEX IX_AccDetails_UniqueCode ON dbo.AccDetails (UniqueCode)
GO
CREATE INDEX IX_AccDetails_Name ON dbo.AccDetails ([Type], Name)
GO
CREATE INDEX IX_ExpenseCenters_Title ON dbo.ExpenseCenters (Title, Code)
GO
CREATE UNIQUE INDEX IX_TagS_Name ON dbo.TagS (Name)
GO
CREATE INDEX IX_category_parent ON dbo.category (parent_code, id)
GO
CREATE INDEX IX_category_name ON dbo.category (name, id)
GO
CREATE INDEX IX_kala_category ON dbo.kala_category (category_code, kala_code)
GO
CREATE INDEX IX_Person_category ON dbo.Person_category (category_code, person_code)
GO
CREATE INDEX IX_PhotoGallery ON dbo.PhotoGallery (Id_Pic, GRPCode, Id)
GO
CREATE INDEX IX_CodeLocks_Expires ON dbo.CodeLocks (ExpiresAt)
GO
CREATE INDEX IX_Sanad_Date ON dbo.Sanad (VoucherDate, Id)
GO
CREATE INDEX IX_Sanad_Number ON dbo.Sanad (Number, Id)
GO
CREATE INDEX IX_Sanad_Detail_Account ON dbo.Sanad_Detail (Kol, Moin, Tafzili, Id)
GO
CREATE INDEX IX_Sanad_Detail_Tafzili ON dbo.Sanad_Detail (Tafzili, Id)
GO
CREATE INDEX IX_Trades_Sanad ON dbo.Trades (SanadId, Id)
GO
CREATE INDEX IX_Trades_Person ON dbo.Trades (PersonCode, Id)
GO
CREATE INDEX IX_TradeRows_Kala ON dbo.TradeRows (KalaCode, TradeId)
GO

-- Views: what lists and reports read.

CREATE VIEW dbo.KalaList AS
SELECT k.Code, k.Name, k.SearchName, k.Barcode, k.UnitName, k.GroupCode, g.Name AS GroupName, k.Price, k.Stock, k.tags, k.Active, c.id AS CategoryCode, c.name AS CategoryName, c.path AS Categories
FROM dbo.kala AS k
LEFT JOIN dbo.KalaGroups AS g ON g.Code = k.GroupCode
LEFT JOIN dbo.kala_category AS kc ON kc.kala_code = k.Code
LEFT JOIN dbo.category AS c ON c.id = kc.category_code
GO
CREATE VIEW dbo.PersonList AS
SELECT p.Code, p.Name, p.FullName, p.SearchName, p.NationalCode, p.Phone, p.City, p.Address, p.GroupCode, g.Name AS GroupName, p.Balance, p.tags, p.Active, c.id AS CategoryCode, c.name AS CategoryName, c.path AS Categories
FROM dbo.Persons AS p
LEFT JOIN dbo.PersonGroups AS g ON g.Code = p.GroupCode
LEFT JOIN dbo.Person_category AS pc ON pc.person_code = p.Code
LEFT JOIN dbo.category AS c ON c.id = pc.category_code
GO
-- Criteria on one account call the detail account Tafsili, criteria on a range Tafzili.
CREATE VIEW dbo.VoucherRows AS
SELECT d.Id, d.SanadId, s.FiscalYear, s.Number, s.VoucherDate, s.RegisteredAt, s.Kind, s.Title, s.UserCode, s.Confirmed, d.RowNo, d.Kol, t.Name AS KolName, d.Moin, a.Name AS MoinName, d.Tafzili, d.Tafzili AS Tafsili, d.Tafsili2, d.Sharh, d.Bed, d.Bes, d.CurrCode, d.CurrRate, d.CurrAmount
FROM dbo.Sanad_Detail AS d
INNER JOIN dbo.Sanad AS s ON s.Id = d.SanadId
INNER JOIN dbo.AccTotals AS t ON t.Code = d.Kol
LEFT JOIN dbo.AccAssistants AS a ON a.TotalCode = d.Kol AND a.Code = d.Moin
GO
