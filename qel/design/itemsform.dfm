object ItemsForm: TQELItemsForm
  Left = 200
  Top = 160
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  ClientHeight = 286
  ClientWidth = 560
  Position = poScreenCenter
  object ItemList: TListBox
    Left = 12
    Top = 12
    Width = 170
    Height = 198
    OnClick = ListClick
    TabOrder = 0
  end
  object AddButton: TButton
    Left = 12
    Top = 218
    Width = 80
    Height = 25
    Caption = '&Add'
    OnClick = AddClick
    TabOrder = 1
  end
  object DeleteButton: TButton
    Left = 102
    Top = 218
    Width = 80
    Height = 25
    Caption = '&Delete'
    OnClick = DeleteClick
    TabOrder = 2
  end
  object RowPanel: TPanel
    Left = 194
    Top = 12
    Width = 354
    Height = 231
    BevelOuter = bvNone
    TabOrder = 3
  end
  object OkButton: TButton
    Left = 382
    Top = 252
    Width = 78
    Height = 25
    Caption = 'OK'
    Default = True
    OnClick = OkClick
    TabOrder = 4
  end
  object CancelButton: TButton
    Left = 470
    Top = 252
    Width = 78
    Height = 25
    Cancel = True
    Caption = 'Cancel'
    ModalResult = mrCancel
    TabOrder = 5
  end
end
