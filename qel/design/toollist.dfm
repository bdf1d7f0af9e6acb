object ToolListForm: TQELToolListForm
  Left = 200
  Top = 160
  BorderIcons = [biSystemMenu, biMaximize]
  Caption = 'Tool'
  ClientHeight = 320
  ClientWidth = 480
  Position = poScreenCenter
  object BottomPanel: TPanel
    Left = 0
    Top = 279
    Width = 480
    Height = 41
    Align = alBottom
    BevelOuter = bvNone
    TabOrder = 2
    object ActionButton: TButton
      Left = 12
      Top = 8
      Width = 112
      Height = 25
      Caption = 'Action'
      OnClick = ActionClick
      TabOrder = 0
    end
    object SwitchBox: TCheckBox
      Left = 140
      Top = 12
      Width = 220
      Height = 17
      TabOrder = 1
    end
    object ButtonPanel: TPanel
      Left = 380
      Top = 0
      Width = 100
      Height = 41
      Align = alRight
      BevelOuter = bvNone
      TabOrder = 2
      object CloseButton: TButton
        Left = 13
        Top = 8
        Width = 75
        Height = 25
        Cancel = True
        Caption = 'Close'
        ModalResult = mrCancel
        TabOrder = 0
      end
    end
  end
  object Lines: TListBox
    Left = 0
    Top = 0
    Width = 200
    Height = 279
    Align = alLeft
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -11
    Font.Name = 'Courier New'
    Font.Style = []
    ItemHeight = 14
    OnClick = LineClick
    ParentFont = False
    TabOrder = 0
  end
  object Details: TMemo
    Left = 200
    Top = 0
    Width = 280
    Height = 279
    Align = alClient
    ReadOnly = True
    ScrollBars = ssBoth
    TabOrder = 1
    WordWrap = False
  end
end
