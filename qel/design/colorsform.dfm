object ColorsForm: TQELColorsForm
  Left = 220
  Top = 180
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'Colors in between'
  ClientHeight = 234
  ClientWidth = 328
  Position = poScreenCenter
  object ColorList: TListBox
    Left = 12
    Top = 12
    Width = 216
    Height = 210
    ItemHeight = 18
    OnClick = ListClick
    OnDblClick = ChangeClick
    OnDrawItem = DrawColor
    Style = lbOwnerDrawFixed
    TabOrder = 0
  end
  object AddButton: TButton
    Left = 240
    Top = 12
    Width = 76
    Height = 25
    Caption = '&Add...'
    OnClick = AddClick
    TabOrder = 1
  end
  object ChangeButton: TButton
    Left = 240
    Top = 43
    Width = 76
    Height = 25
    Caption = '&Change...'
    OnClick = ChangeClick
    TabOrder = 2
  end
  object DeleteButton: TButton
    Left = 240
    Top = 74
    Width = 76
    Height = 25
    Caption = '&Delete'
    OnClick = DeleteClick
    TabOrder = 3
  end
  object UpButton: TButton
    Left = 240
    Top = 113
    Width = 76
    Height = 25
    Caption = '&Up'
    OnClick = UpClick
    TabOrder = 4
  end
  object DownButton: TButton
    Left = 240
    Top = 144
    Width = 76
    Height = 25
    Caption = 'Do&wn'
    OnClick = DownClick
    TabOrder = 5
  end
  object CloseButton: TButton
    Left = 240
    Top = 197
    Width = 76
    Height = 25
    Cancel = True
    Caption = 'Close'
    Default = True
    ModalResult = mrOk
    TabOrder = 6
  end
end
