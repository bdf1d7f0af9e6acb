object SearchForm: TQELSearchForm
  Left = 200
  Top = 160
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'Search and Replace Text'
  ClientHeight = 300
  ClientWidth = 460
  Position = poScreenCenter
  object SearchLabel: TLabel
    Left = 12
    Top = 15
    Width = 90
    Height = 13
    Caption = '&Search for'
    FocusControl = SearchEdit
  end
  object SearchEdit: TEdit
    Left = 104
    Top = 12
    Width = 344
    Height = 21
    OnChange = SearchChange
    TabOrder = 0
  end
  object TextLabel: TLabel
    Left = 12
    Top = 42
    Width = 90
    Height = 13
    Caption = 'Replace &with'
    FocusControl = TextEdit
  end
  object TextEdit: TEdit
    Left = 104
    Top = 39
    Width = 344
    Height = 21
    TabOrder = 1
  end
  object CaseBox: TCheckBox
    Left = 104
    Top = 66
    Width = 160
    Height = 17
    Caption = '&Match case'
    OnClick = SearchChange
    TabOrder = 2
  end
  object CountLabel: TLabel
    Left = 12
    Top = 92
    Width = 300
    Height = 13
  end
  object PlaceList: TListBox
    Left = 12
    Top = 109
    Width = 436
    Height = 146
    OnClick = PlaceClick
    TabOrder = 3
  end
  object ReplaceButton: TButton
    Left = 274
    Top = 264
    Width = 84
    Height = 25
    Caption = '&Replace all'
    OnClick = ReplaceClick
    TabOrder = 4
  end
  object CloseButton: TButton
    Left = 366
    Top = 264
    Width = 82
    Height = 25
    Cancel = True
    Caption = 'Close'
    ModalResult = mrCancel
    TabOrder = 5
  end
end
