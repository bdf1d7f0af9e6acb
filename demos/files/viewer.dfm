object ViewerForm: TViewerForm
  Left = 160
  Top = 110
  ClientHeight = 480
  ClientWidth = 720
  KeyPreview = True
  Position = poMainFormCenter
  OnClose = FormClose
  OnKeyDown = FormKeyDown
  object FindPanel: TPanel
    Left = 0
    Top = 0
    Width = 720
    Height = 30
    Align = alTop
    BevelOuter = bvNone
    TabOrder = 1
    object FindLabel: TLabel
      Left = 6
      Top = 8
      Width = 24
      Height = 13
      Caption = '&Find'
      FocusControl = FindEdit
    end
    object FindEdit: TEdit
      Left = 40
      Top = 4
      Width = 220
      Height = 21
      TabOrder = 0
      OnKeyDown = FindKeyDown
    end
    object WrapCheck: TCheckBox
      Left = 274
      Top = 6
      Width = 100
      Height = 19
      Caption = '&Wrap words'
      TabOrder = 1
      OnClick = CheckClick
    end
    object FollowCheck: TCheckBox
      Left = 380
      Top = 6
      Width = 100
      Height = 19
      Caption = 'F&ollow'
      TabOrder = 2
      OnClick = CheckClick
    end
  end
  object View: TQELTextFileView
    Left = 0
    Top = 30
    Width = 720
    Height = 450
    Align = alClient
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -13
    Font.Name = 'Courier New'
    Font.Style = []
    TabOrder = 0
  end
end
