object FindForm: TFindForm
  Left = 300
  Top = 220
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'Find'
  ClientHeight = 84
  ClientWidth = 380
  Color = clBtnFace
  object WhatLabel: TLabel
    Left = 12
    Top = 16
    Width = 50
    Height = 13
    Caption = 'Fi&nd what:'
    FocusControl = WhatEdit
  end
  object WhatEdit: TEdit
    Left = 76
    Top = 12
    Width = 200
    Height = 21
    TabOrder = 0
    OnChange = WhatEditChange
  end
  object MatchCaseBox: TCheckBox
    Left = 76
    Top = 46
    Width = 200
    Height = 17
    Caption = '&Match case'
    TabOrder = 1
  end
  object NextButton: TButton
    Left = 288
    Top = 10
    Width = 80
    Height = 25
    Caption = '&Find next'
    Default = True
    Enabled = False
    TabOrder = 2
    OnClick = NextButtonClick
  end
  object CloseButton: TButton
    Left = 288
    Top = 42
    Width = 80
    Height = 25
    Cancel = True
    Caption = 'Close'
    TabOrder = 3
    OnClick = CloseButtonClick
  end
end
