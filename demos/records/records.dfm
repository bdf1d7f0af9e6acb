object RecordsForm: TRecordsForm
  Left = 160
  Top = 120
  Constraints.MinHeight = 320
  Constraints.MinWidth = 720
  Caption = 'Records'
  ClientHeight = 460
  ClientWidth = 800
  object TopPanel: TPanel
    Left = 0
    Top = 0
    Width = 800
    Height = 36
    Align = alTop
    BevelOuter = bvNone
    TabOrder = 0
    object Navigator: TQELDBNavigator
      Left = 8
      Top = 6
      Width = 286
      Height = 25
      DataSource = Source
      Flat = True
      SearchForm = SearchForm
      ShowHint = True
      TabOrder = 0
      TabStop = True
    end
    object FilterLabel: TLabel
      Left = 310
      Top = 10
      Width = 40
      Height = 15
      Caption = '&Filter'
      FocusControl = FilterEdit
    end
    object FilterEdit: TEdit
      Left = 356
      Top = 8
      Width = 170
      Height = 21
      Hint = 'Shows whose name or city has this text'
      ShowHint = True
      TabOrder = 1
      OnChange = FilterChange
    end
  end
  object Grid: TDBGrid
    Left = 0
    Top = 36
    Width = 800
    Height = 220
    Align = alClient
    DataSource = Source
    Options = [dgEditing, dgTitles, dgIndicator, dgColumnResize, dgColLines, dgRowLines, dgTabs, dgConfirmDelete, dgCancelOnExit]
    TabOrder = 1
  end
  object Splitter: TSplitter
    Left = 0
    Top = 256
    Width = 800
    Height = 4
    Align = alBottom
    AutoSnap = False
    MinSize = 80
    ResizeStyle = rsUpdate
  end
  object DetailPanel: TPanel
    Left = 0
    Top = 260
    Width = 800
    Height = 180
    Align = alBottom
    BevelOuter = bvNone
    Constraints.MinHeight = 176
    TabOrder = 2
    object NameLabel: TLabel
      Left = 12
      Top = 19
      Width = 70
      Height = 15
      Caption = '&Name'
      FocusControl = NameEdit
    end
    object NameEdit: TDBEdit
      Left = 90
      Top = 16
      Width = 220
      Height = 21
      DataField = 'name'
      DataSource = Source
      TabOrder = 0
    end
    object CityLabel: TLabel
      Left = 12
      Top = 51
      Width = 70
      Height = 15
      Caption = '&City'
      FocusControl = CityEdit
    end
    object CityEdit: TDBEdit
      Left = 90
      Top = 48
      Width = 220
      Height = 21
      DataField = 'city'
      DataSource = Source
      TabOrder = 1
    end
    object BornLabel: TLabel
      Left = 12
      Top = 83
      Width = 70
      Height = 15
      Caption = '&Born'
      FocusControl = BornEdit
    end
    object BornEdit: TDBEdit
      Left = 90
      Top = 80
      Width = 100
      Height = 21
      DataField = 'born'
      DataSource = Source
      TabOrder = 2
    end
    object BalanceLabel: TLabel
      Left = 12
      Top = 115
      Width = 70
      Height = 15
      Caption = 'B&alance'
      FocusControl = BalanceEdit
    end
    object BalanceEdit: TDBEdit
      Left = 90
      Top = 112
      Width = 100
      Height = 21
      DataField = 'balance'
      DataSource = Source
      TabOrder = 3
    end
    object KindLabel: TLabel
      Left = 12
      Top = 147
      Width = 70
      Height = 15
      Caption = '&Kind'
      FocusControl = KindEdit
    end
    object KindEdit: TQELDBLookupedit
      Left = 90
      Top = 144
      Width = 160
      Height = 21
      DataField = 'kind'
      DataSource = Source
      KeyField = 'id'
      ListField = 'name'
      ListSource = KindSource
      TabOrder = 4
    end
    object Details: TPageControl
      Left = 526
      Top = 12
      Width = 262
      Height = 157
      AccessibleName = 'Details'
      ActivePage = PaymentsPage
      Anchors = [akLeft, akTop, akRight, akBottom]
      TabOrder = 12
      object PaymentsPage: TTabSheet
        Caption = 'Payments'
        object Payments: TDBGrid
          Left = 0
          Top = 0
          Width = 254
          Height = 129
          Align = alClient
          DataSource = PaymentSource
          ReadOnly = True
          TabOrder = 0
        end
      end
      object NotesPage: TTabSheet
        Caption = 'Notes'
        object Notes: TQELDBMemoView
          Left = 0
          Top = 0
          Width = 254
          Height = 129
          AccessibleName = 'Notes'
          Align = alClient
          DataField = 'notes'
          DataSource = Source
          EditInWindow = True
          Hint = 'A double click opens a window for long notes'
          ScrollBars = ssVertical
          ShowHint = True
          TabOrder = 0
        end
      end
      object PhotoPage: TTabSheet
        Caption = 'Photo'
        object Photo: TQELDBImageView
          Left = 0
          Top = 0
          Width = 254
          Height = 104
          AccessibleName = 'Photo'
          Anchors = [akLeft, akTop, akRight, akBottom]
          DataField = 'photo'
          DataSource = Source
          TabOrder = 0
        end
        object PhotoButton: TButton
          Left = 0
          Top = 104
          Width = 254
          Height = 25
          Anchors = [akLeft, akRight, akBottom]
          Caption = '&Load a photo...'
          TabOrder = 1
          OnClick = PhotoClick
        end
      end
    end
    object AddButton: TButton
      Left = 340
      Top = 15
      Width = 80
      Height = 25
      Caption = 'A&dd'
      TabOrder = 5
      OnClick = AddClick
    end
    object DeleteButton: TButton
      Left = 430
      Top = 15
      Width = 80
      Height = 25
      Action = DeleteAction
      TabOrder = 6
    end
    object PostButton: TButton
      Left = 340
      Top = 47
      Width = 80
      Height = 25
      Action = PostAction
      TabOrder = 7
    end
    object CancelButton: TButton
      Left = 430
      Top = 47
      Width = 80
      Height = 25
      Action = CancelAction
      TabOrder = 8
    end
    object ExportButton: TButton
      Left = 340
      Top = 79
      Width = 80
      Height = 25
      Caption = '&Export...'
      TabOrder = 9
      OnClick = ExportClick
    end
    object ImportButton: TButton
      Left = 430
      Top = 79
      Width = 80
      Height = 25
      Caption = '&Import...'
      TabOrder = 10
      OnClick = ImportClick
    end
    object ProtectButton: TButton
      Left = 340
      Top = 143
      Width = 170
      Height = 25
      Caption = '&Protect by a password...'
      Hint = 'Asks for the password when the file is opened'
      ShowHint = True
      TabOrder = 11
      OnClick = ProtectClick
    end
    object Gauge: TQELGauge
      Left = 340
      Top = 114
      Width = 170
      Height = 26
      SegmentColor = 15780518
    end
  end
  object StatusBar: TStatusBar
    Left = 0
    Top = 440
    Width = 800
    Height = 20
    SimplePanel = True
  end
  object Connection: TOdbcConnection
    Left = 668
    Top = 248
  end
  object Source: TDataSource
    DataSet = Query
    Left = 540
    Top = 216
  end
  object Query: TOdbcQuery
    Connection = Connection
    IdentityQuery = 'SELECT last_insert_rowid()'
    RequestLive = True
    SQL.Strings = (
      'SELECT id, name, city, born, balance, kind, notes, photo FROM people ORDER BY name')
    FilterOptions = [foCaseInsensitive]
    Left = 540
    Top = 248
    object QueryId: TIntegerField
      FieldName = 'id'
      Visible = False
    end
    object QueryName: TStringField
      DisplayLabel = 'Name'
      FieldName = 'name'
      Required = True
      Size = 28
    end
    object QueryCity: TStringField
      DisplayLabel = 'City'
      FieldName = 'city'
      Size = 20
    end
    object QueryBorn: TDateField
      DisplayLabel = 'Born'
      DisplayWidth = 12
      FieldName = 'born'
    end
    object QueryBalance: TCurrencyField
      DisplayLabel = 'Balance'
      DisplayWidth = 12
      FieldName = 'balance'
    end
    object QueryKind: TIntegerField
      FieldName = 'kind'
      Visible = False
    end
    object QueryNotes: TMemoField
      FieldName = 'notes'
      Visible = False
    end
    object QueryPhoto: TBlobField
      FieldName = 'photo'
      Visible = False
    end
    object QueryKindName: TStringField
      DisplayLabel = 'Kind'
      DisplayWidth = 12
      FieldName = 'kindname'
      FieldKind = fkLookup
      KeyFields = 'kind'
      LookupCache = True
      LookupDataSet = KindQuery
      LookupKeyFields = 'id'
      LookupResultField = 'name'
    end
  end
  object KindSource: TDataSource
    DataSet = KindQuery
    Left = 604
    Top = 216
  end
  object KindQuery: TOdbcQuery
    Connection = Connection
    SQL.Strings = (
      'SELECT id, name FROM kinds ORDER BY name')
    Left = 604
    Top = 248
  end
  object PaymentSource: TDataSource
    DataSet = PaymentQuery
    Left = 636
    Top = 216
  end
  object PaymentQuery: TOdbcQuery
    Connection = Connection
    MasterSource = Source
    SQL.Strings = (
      'SELECT day, amount FROM payments WHERE person = :id ORDER BY day')
    Left = 636
    Top = 248
    object PaymentDay: TDateField
      DisplayLabel = 'Paid on'
      DisplayWidth = 12
      FieldName = 'day'
    end
    object PaymentAmount: TCurrencyField
      DisplayLabel = 'Amount'
      DisplayWidth = 12
      FieldName = 'amount'
    end
  end
  object AccessSource: TDataSource
    DataSet = AccessQuery
    Left = 700
    Top = 216
  end
  object AccessQuery: TOdbcQuery
    Connection = Connection
    RequestLive = True
    SQL.Strings = (
      'SELECT id, code FROM access')
    Left = 700
    Top = 248
  end
  object Login: TQELDBPasswordDlg
    DataSource = AccessSource
    Datapassword = 'code'
    Kind = pkPassword
    Title = 'Records'
    Left = 700
    Top = 280
  end
  object NewPassword: TQELPasswordDlg
    Kind = pkChange
    MinLength = 4
    OldPasswordLabel = ''
    Title = 'Protect the file'
    Left = 732
    Top = 280
  end
  object SearchForm: TQELDBSearchForm
    DataSource = Source
    Fields.Strings = (
      'name'
      'city'
      'notes')
    StayOpen = True
    Title = 'Search'
    Left = 668
    Top = 280
  end
  object TransferSource: TDataSource
    DataSet = TransferQuery
    Left = 572
    Top = 216
  end
  object TransferQuery: TOdbcQuery
    RequestLive = True
    SQL.Strings = (
      'SELECT name, city, born, balance FROM people ORDER BY name')
    UniDirectional = True
    Left = 572
    Top = 248
  end
  object Transfer: TQELDBAscii
    Fields = <
      item
        CSVName = 'Name'
        DataField = 'name'
      end
      item
        CSVName = 'City'
        DataField = 'city'
      end
      item
        CSVName = 'Born'
        DataField = 'born'
      end
      item
        CSVName = 'Balance'
        DataField = 'balance'
      end>
    Delimiter = ';'
    DataSource = TransferSource
    PrintHeader = True
    OnImportException = RecordRefused
    OnImportSuccess = RecordRead
    ExportBeforeWrite = RecordWritten
    Left = 540
    Top = 280
  end
  object Actions: TActionList
    Left = 572
    Top = 280
    object DeleteAction: TDataSetDelete
      Category = 'Data set'
      Caption = 'De&lete'
      Hint = 'Deletes the record'
      ShortCut = 0
      DataSource = Source
      OnExecute = DeleteClick
    end
    object PostAction: TDataSetPost
      Category = 'Data set'
      Caption = '&Save'
      Enabled = False
      Hint = 'Saves the record'
      ShortCut = 0
      DataSource = Source
    end
    object CancelAction: TDataSetCancel
      Category = 'Data set'
      Caption = '&Undo'
      Enabled = False
      Hint = 'Takes the record''s changes back'
      ShortCut = 0
      DataSource = Source
    end
  end
  object OpenDialog: TOpenDialog
    DefaultExt = 'csv'
    Filter = 'Text files|*.csv;*.txt|All files|*.*'
    Options = [ofHideReadOnly, ofPathMustExist, ofFileMustExist, ofEnableSizing]
    Left = 540
    Top = 312
  end
  object PhotoDialog: TOpenDialog
    Filter = 'Pictures|*.bmp;*.png;*.jpg;*.jpeg;*.gif;*.ico'
    Options = [ofHideReadOnly, ofPathMustExist, ofFileMustExist, ofEnableSizing]
    Left = 604
    Top = 312
  end
  object SaveDialog: TSaveDialog
    DefaultExt = 'csv'
    Filter = 'Text files|*.csv;*.txt|All files|*.*'
    Options = [ofOverwritePrompt, ofHideReadOnly, ofPathMustExist, ofEnableSizing]
    Left = 572
    Top = 312
  end
end
