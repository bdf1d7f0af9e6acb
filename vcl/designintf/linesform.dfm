object LinesForm: TLinesForm
  Left = 200
  Top = 160
  BorderIcons = [biSystemMenu]
  Caption = 'Lines'
  ClientHeight = 273
  ClientWidth = 424
  Position = poScreenCenter
  object Memo: TMemo
    Left = 0
    Top = 0
    Width = 424
    Height = 232
    Align = alClient
    OnChange = ShowCount
    ScrollBars = ssBoth
    TabOrder = 0
    WantTabs = True
    WordWrap = False
  end
  object BottomPanel: TPanel
    Left = 0
    Top = 232
    Width = 424
    Height = 41
    Align = alBottom
    BevelOuter = bvNone
    TabOrder = 1
    object CountLabel: TLabel
      Left = 12
      Top = 14
      Width = 60
      Height = 13
      Caption = '0 lines'
    end
    object ButtonPanel: TPanel
      Left = 244
      Top = 0
      Width = 180
      Height = 41
      Align = alRight
      BevelOuter = bvNone
      TabOrder = 0
      object OkButton: TButton
        Left = 12
        Top = 8
        Width = 75
        Height = 25
        Caption = 'OK'
        ModalResult = mrOk
        TabOrder = 0
      end
      object CancelButton: TButton
        Left = 93
        Top = 8
        Width = 75
        Height = 25
        Cancel = True
        Caption = 'Cancel'
        ModalResult = mrCancel
        TabOrder = 1
      end
    end
  end
end
