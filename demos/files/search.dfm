object SearchForm: TSearchForm
  Left = 200
  Top = 150
  BorderStyle = bsDialog
  Caption = 'Search for files'
  ClientHeight = 396
  ClientWidth = 602
  Position = poMainFormCenter
  OnCloseQuery = FormCloseQuery
  object FolderLabel: TLabel
    Left = 12
    Top = 15
    Width = 60
    Height = 13
    Caption = 'I&n folder'
    FocusControl = FolderEdit
  end
  object FolderEdit: TQELFileLookup
    Left = 90
    Top = 12
    Width = 398
    Height = 22
    TabOrder = 0
  end
  object MaskLabel: TLabel
    Left = 12
    Top = 45
    Width = 60
    Height = 13
    Caption = '&Names'
    FocusControl = MaskEdit
  end
  object MaskEdit: TEdit
    Left = 90
    Top = 42
    Width = 398
    Height = 21
    TabOrder = 1
    Text = '*.*'
  end
  object TextLabel: TLabel
    Left = 12
    Top = 75
    Width = 60
    Height = 13
    Caption = 'With the &text'
    FocusControl = TextEdit
  end
  object TextEdit: TEdit
    Left = 90
    Top = 72
    Width = 398
    Height = 21
    TabOrder = 2
  end
  object InnerCheck: TCheckBox
    Left = 90
    Top = 100
    Width = 200
    Height = 19
    Caption = 'In folders &below, too'
    Checked = True
    TabOrder = 3
  end
  object SearchButton: TButton
    Left = 500
    Top = 11
    Width = 90
    Height = 26
    Caption = '&Search'
    Default = True
    TabOrder = 4
    OnClick = SearchClick
  end
  object GoButton: TButton
    Left = 500
    Top = 43
    Width = 90
    Height = 26
    Caption = '&Go to it'
    Enabled = False
    TabOrder = 5
    OnClick = GoClick
  end
  object CloseButton: TButton
    Left = 500
    Top = 75
    Width = 90
    Height = 26
    Cancel = True
    Caption = 'Close'
    TabOrder = 6
    OnClick = CloseClick
  end
  object Found: TListBox
    Left = 12
    Top = 128
    Width = 578
    Height = 240
    AccessibleName = 'What was found'
    ItemHeight = 13
    TabOrder = 7
    OnClick = FoundClick
    OnDblClick = GoClick
  end
  object StatusLabel: TLabel
    Left = 12
    Top = 374
    Width = 578
    Height = 13
    AutoSize = False
  end
  object Collector: TQELFileCollector
    Left = 300
    Top = 96
    OnFile = CollectorFile
    OnProgress = CollectorProgress
  end
end
