object MainForm: TMainForm
  Left = 200
  Top = 120
  Caption = 'First steps'
  ClientHeight = 120
  ClientWidth = 260
  object Sky: TQELBackground
    Gradient.BeginColor = clWhite
    Gradient.EndColor = clAqua
  end
  object Title: TQELLabel
    Left = 16
    Top = 12
    Width = 228
    Height = 28
    Background = Sky
    Caption = 'A gradient, a gauge'
  end
  object Progress: TQELGauge
    Left = 16
    Top = 48
    Width = 228
    Height = 20
  end
  object More: TQELButton
    Left = 80
    Top = 80
    Width = 100
    Height = 28
    Background = Sky
    Caption = '&More'
    OnClick = MoreClick
  end
  object WindowSaver: TQELFormSaver
    FormStore.Datatype = sIniFile
    FormStore.Inifile.Filename = 'firststeps.ini'
    FormStore.Inifile.Section = 'Windows'
  end
end
