object ReplaceForm: TReplaceForm
  Left = 220
  Top = 170
  BorderStyle = bsDialog
  Caption = 'Replace texts in the selected files'
  ClientHeight = 178
  ClientWidth = 444
  Position = poMainFormCenter
  object FindLabel: TLabel
    Left = 12
    Top = 15
    Width = 60
    Height = 13
    Caption = '&Find'
    FocusControl = FindEdit
  end
  object FindEdit: TEdit
    Left = 90
    Top = 12
    Width = 340
    Height = 21
    TabOrder = 0
  end
  object ByLabel: TLabel
    Left = 12
    Top = 45
    Width = 70
    Height = 13
    Caption = 'Replace &by'
    FocusControl = ByEdit
  end
  object ByEdit: TEdit
    Left = 90
    Top = 42
    Width = 340
    Height = 21
    TabOrder = 1
  end
  object CaseCheck: TCheckBox
    Left = 90
    Top = 72
    Width = 108
    Height = 19
    Caption = 'Match &case'
    TabOrder = 2
  end
  object WordCheck: TCheckBox
    Left = 202
    Top = 72
    Width = 108
    Height = 19
    Caption = 'Whole &words'
    TabOrder = 3
  end
  object PatternCheck: TCheckBox
    Left = 314
    Top = 72
    Width = 108
    Height = 19
    Caption = '&Pattern'
    TabOrder = 4
  end
  object CountButton: TButton
    Left = 90
    Top = 102
    Width = 106
    Height = 26
    Caption = 'C&ount'
    TabOrder = 5
    OnClick = CountClick
  end
  object ReplaceButton: TButton
    Left = 204
    Top = 102
    Width = 106
    Height = 26
    Caption = '&Replace'
    TabOrder = 6
    OnClick = ReplaceClick
  end
  object CloseButton: TButton
    Left = 324
    Top = 102
    Width = 106
    Height = 26
    Cancel = True
    Caption = 'Close'
    ModalResult = 2
    TabOrder = 7
  end
  object StatusLabel: TLabel
    Left = 12
    Top = 140
    Width = 418
    Height = 30
    AutoSize = False
    WordWrap = True
  end
  object Replacing: TQELTextReplace
    Left = 24
    Top = 96
  end
end
