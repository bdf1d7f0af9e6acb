object FieldsPage: TFieldsPage
  Left = 0
  Top = 0
  Width = 952
  Height = 588
  TabOrder = 0
  object People: TMemoryDataSet
    Left = 800
    Top = 540
    FieldDefs = <
      item
        DataType = ftString
        Name = 'Name'
        Size = 40
      end
      item
        DataType = ftInteger
        Name = 'Kind'
      end
      item
        DataType = ftFloat
        Name = 'Balance'
      end
      item
        DataType = ftBlob
        Name = 'Photo'
      end
      item
        DataType = ftMemo
        Name = 'Notes'
      end>
  end
  object PeopleSource: TDataSource
    Left = 832
    Top = 540
    DataSet = People
  end
  object Kinds: TMemoryDataSet
    Left = 864
    Top = 540
    FieldDefs = <
      item
        DataType = ftInteger
        Name = 'Id'
      end
      item
        DataType = ftString
        Name = 'Kind'
        Size = 20
      end>
  end
  object KindsSource: TDataSource
    Left = 896
    Top = 540
    DataSet = Kinds
  end
  object NavigateHeading: TLabel
    Left = 16
    Top = 8
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'A navigator, and a search by what is typed'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object NavigateLine: TBevel
    Left = 16
    Top = 24
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object PeopleNavigator: TQELDBNavigator
    Left = 16
    Top = 34
    Width = 330
    Height = 28
    AccessibleName = 'Records'
    DataSource = PeopleSource
    TabOrder = 0
  end
  object SearchCaption: TLabel
    Left = 16
    Top = 76
    Width = 100
    Height = 13
    AutoSize = False
    Caption = '&Go to'
    FocusControl = SearchEdit
  end
  object SearchEdit: TQELDBIndexLookup
    Left = 120
    Top = 72
    Width = 180
    Height = 21
    DataField = 'Name'
    DataSource = PeopleSource
    TabOrder = 1
    OnNotFound = NotFound
  end
  object FoundText: TLabel
    Left = 312
    Top = 76
    Width = 144
    Height = 13
    AutoSize = False
    Caption = ''
  end
  object EditsHeading: TLabel
    Left = 16
    Top = 112
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Labels and edits of fields'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object EditsLine: TBevel
    Left = 16
    Top = 128
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object NameText: TQELDBLabel
    Left = 16
    Top = 138
    Width = 440
    Height = 26
    DataField = 'Name'
    DataSource = PeopleSource
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -19
    Font.Name = 'Tahoma'
    Font.Style = []
    ParentFont = False
  end
  object NameCaption: TLabel
    Left = 16
    Top = 180
    Width = 100
    Height = 13
    AutoSize = False
    Caption = '&Name'
    FocusControl = NameEdit
  end
  object NameEdit: TQELDBOfficeEdit
    Left = 120
    Top = 176
    Width = 180
    Height = 23
    DataField = 'Name'
    DataSource = PeopleSource
    TabOrder = 2
  end
  object KindCaption: TLabel
    Left = 16
    Top = 212
    Width = 100
    Height = 13
    AutoSize = False
    Caption = '&Kind'
    FocusControl = KindEdit
  end
  object KindEdit: TQELDBLookupedit
    Left = 120
    Top = 208
    Width = 180
    Height = 23
    DataField = 'Kind'
    DataSource = PeopleSource
    KeyField = 'Id'
    ListField = 'Kind'
    ListSource = KindsSource
    TabOrder = 3
  end
  object BalanceCaption: TLabel
    Left = 16
    Top = 244
    Width = 100
    Height = 13
    AutoSize = False
    Caption = '&Balance'
    FocusControl = BalanceEdit
  end
  object BalanceEdit: TQELDBSpinEdit
    Left = 120
    Top = 240
    Width = 180
    Height = 23
    DataField = 'Balance'
    DataSource = PeopleSource
    MaxValue = 100000.000000000000000000
    MinValue = -100000.000000000000000000
    TabOrder = 4
  end
  object BalanceSticky: TQELDBStickyLabel
    Left = 310
    Top = 244
    Width = 60
    Height = 13
    DataField = 'Balance'
    DataSource = PeopleSource
    Control = BalanceEdit
    Position = pRight
  end
  object AllHeading: TLabel
    Left = 16
    Top = 280
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'The records'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object AllLine: TBevel
    Left = 16
    Top = 296
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object PeopleGrid: TDBGrid
    Left = 16
    Top = 306
    Width = 440
    Height = 200
    AccessibleName = 'All records'
    DataSource = PeopleSource
    TabOrder = 5
  end
  object ViewsHeading: TLabel
    Left = 480
    Top = 8
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'A picture and a long text'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object ViewsLine: TBevel
    Left = 480
    Top = 24
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object PhotoView: TQELDBImageView
    Left = 480
    Top = 34
    Width = 200
    Height = 200
    AccessibleName = 'Picture'
    DataField = 'Photo'
    DataSource = PeopleSource
    TabOrder = 6
  end
  object NotesView: TQELDBMemoView
    Left = 480
    Top = 250
    Width = 456
    Height = 256
    AccessibleName = 'Notes'
    DataField = 'Notes'
    DataSource = PeopleSource
    EditInWindow = True
    TabOrder = 7
  end
end
