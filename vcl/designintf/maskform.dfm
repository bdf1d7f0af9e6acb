object MaskForm: TMaskForm
  Left = 200
  Top = 160
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'Mask'
  ClientHeight = 249
  ClientWidth = 424
  Position = poScreenCenter
  object MaskLabel: TLabel
    Left = 12
    Top = 12
    Width = 30
    Height = 13
    Caption = '&Mask:'
    FocusControl = MaskEdit
  end
  object TryLabel: TLabel
    Left = 12
    Top = 64
    Width = 30
    Height = 13
    Caption = '&Try it:'
    FocusControl = TryEdit
  end
  object ErrorLabel: TLabel
    Left = 12
    Top = 120
    Width = 200
    Height = 80
    AutoSize = False
    WordWrap = True
  end
  object SampleLabel: TLabel
    Left = 228
    Top = 12
    Width = 45
    Height = 13
    Caption = '&Samples:'
    FocusControl = SampleList
  end
  object MaskEdit: TEdit
    Left = 12
    Top = 30
    Width = 200
    Height = 21
    TabOrder = 0
    OnChange = TryMask
  end
  object TryEdit: TMaskEdit
    Left = 12
    Top = 82
    Width = 200
    Height = 21
    TabOrder = 1
  end
  object SampleList: TListBox
    Left = 228
    Top = 30
    Width = 184
    Height = 170
    TabOrder = 2
    OnClick = TakeSample
  end
  object OkButton: TButton
    Left = 256
    Top = 212
    Width = 75
    Height = 25
    Caption = 'OK'
    Default = True
    ModalResult = mrOk
    TabOrder = 3
  end
  object CancelButton: TButton
    Left = 337
    Top = 212
    Width = 75
    Height = 25
    Cancel = True
    Caption = 'Cancel'
    ModalResult = mrCancel
    TabOrder = 4
  end
end
