# The headers that applications include, room by room; they are installed together. The others are the rooms' own.
# What a public header includes is public too: the target all_verify_interface_header_sets compiles each one alone.

function(baseframe_public_headers target room)
  list(TRANSFORM ARGN PREPEND "${CMAKE_SOURCE_DIR}/${room}/" OUTPUT_VARIABLE files)
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS "${CMAKE_SOURCE_DIR}/${room}" FILES ${files})
endfunction()

baseframe_public_headers(Ado ado
  ADOCommand.h
  ADOConnection.h
  AdoError.h
  AdoExport.h
  ADOQuery.h
  DataSet.h
  DataSource.h
  Engine.h
  Field.h
  FieldType.h
  NotifyEvent.h
  PagedDataSet.h
  QueryThread.h)
baseframe_public_headers(Component_TRV suite
  AdvListEditorPer.h
  AdvListValues.h
  ATImageBox.h
  Balloon.h
  CalendarKind.h
  ControlEvents.h
  DateText.h
  EntityType.h
  ExpandHeader.h
  FlowLines.h
  GridPanel.h
  Look.h
  MenuItem.h
  NxExpandPanel.h
  PopupMenu.h
  SectionEdit.h
  SectionText.h
  SmartButton_TRV.h
  SmartButtonEdit_TRV.h
  SmartCheckBox_TRV.h
  SmartComboBox_TRV.h
  SmartDateEdit_TRV.h
  SmartDBGrid_TRV.h
  SmartDetailView_TRV.h
  SmartEdit_TRV.h
  SmartFaDate.h
  SmartFlowPanel_TRV.h
  SmartLabel_TRV.h
  SmartMaskEdit_TRV.h
  SmartPanel_TRV.h
  SmartTime_TRV.h
  SuiteExport.h
  TabControl.h)
baseframe_public_headers(BaseFrame_PKG package
  AccountTypes.h
  AutoVoucherLibrary.h
  ComponentRegistry.h
  DateBound.h
  EntityTypes.h
  ExactNumber.h
  ExpenseCenterLibrary.h
  FieldName.h
  Frame.h
  HostAccounting.h
  HostClock.h
  HostCommonLibrary.h
  HostData.h
  HostLibraries.h
  HostMessages.h
  HostPickers.h
  HostPictures.h
  HostServices.h
  HostSettings.h
  MessageTypes.h
  PackageExport.h
  SearchCondition.h
  SplicedText.h
  TarvaSearch.h
  TarvaSearchManager.h
  TextPattern.h
  ValueText.h)
baseframe_public_headers(BaseFrame_PKG search
  AccountingCodes_Search_UNT.h
  ADVSearch_UNT.h
  DatePeriods.h
  DateRange_Display_UNT.h
  FilterLine.h
  General_Search_UNT.h
  Range_AccCodes_Search_UNT.h
  Range_Cost_Search.h
  Range_Date_Search.h
  Range_Digit_Search.h
  Range_SelectEntity_Search_UNT.h
  Range_String_Search.h
  SelectEntity_Search_UNT.h
  Tab_Search_UNT.h)
baseframe_public_headers(BaseFrame_PKG select
  AccountChart.h
  CodeItem.h
  DetailUniqueCode.h
  DetailUniqueCode_UNT.h
  Select_AccountCode_UNT.h
  Select_Entity_UNT.h)
baseframe_public_headers(BaseFrame_PKG tags
  TagPictures.h
  tags_frame.h
  Tags_search_UNT.h
  TagStore.h)
baseframe_public_headers(BaseFrame_PKG category
  Category_Search_UNT.h
  Category_SearchWithManager_UNT.h
  CategoryPicker.h
  CategoryTree.h)
baseframe_public_headers(BaseFrame_PKG value
  CurrencyFrame_UNT.h
  CurrencyRates.h
  OpenPictureDialog.h
  Pic_Get_UNT.h
  Pic_Show_UNT.h
  PictureReader.h
  PictureSet.h
  SymbolButton.h)
baseframe_public_headers(BaseFrame_PKG voucher
  Detail_Button_UNT.h
  GetVoucher_UNT.h
  ListDetail_FRAME_UNT.h
  RefreshAutoVouchersFrame_UNT.h
  SaveAutoVouchersFrame_UNT.h)
baseframe_public_headers(Database database
  DatabaseExport.h
  DatabaseFile.h
  DatabaseFunctions.h
  DatabaseSchema.h
  SampleData.h)
baseframe_public_headers(ReferenceHost host
  AccountingServices.h
  AccountPickers.h
  CodeListItems.h
  CodeLocks.h
  EntityPickers.h
  HostApplication.h
  HostCommon.h
  HostDataModule.h
  HostExport.h
  HostMessageBoxes.h
  HostSettingsFile.h
  HostSystemClock.h
  MessageDialog.h
  NumberedMessages.h
  PickerDialogs.h
  PictureServices.h
  ReferenceHost.h
  RunTimeLibraries.h
  VoucherConflictCheck.h)
