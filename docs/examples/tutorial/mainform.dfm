object MainForm: TMainForm
  Left = 40
  Top = 30
  Caption = 'First steps'
  ClientHeight = 120
  ClientWidth = 260
  object Title: TQELLabel
    Left = 16
    Top = 8
    Width = 224
    Height = 32
    Caption = 'A gradient, a gauge'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -16
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    Frame.FrameStyle = frameNone
    Background = Sky
    ParentFont = False
  end
  object Progress: TQELGauge
    Left = 16
    Top = 48
    Width = 224
    Height = 24
    Glyph.TransparentColor = clBlack
    BevelInner.FrameStyle = frameLowered
    Borderwidth = 6
    Kind = kHorizontal
  end
  object More: TQELButton
    Left = 80
    Top = 80
    Width = 96
    Height = 32
    Glyph.TransparentColor = clBlack
    Caption = '&More'
    Background = Sky
    OnClick = MoreClick
    TabOrder = 0
    TabStop = True
  end
  object Sky: TQELBackground
    Gradient.BeginColor = clWhite
    Gradient.EndColor = clAqua
    Left = 16
    Top = 80
  end
  object WindowSaver: TQELFormSaver
    FormStore.ErrorStr = 'Error'
    FormStore.Datatype = sIniFile
    FormStore.Registry.Path = 'Software\Company\Product'
    FormStore.Registry.Section = 'MySection'
    FormStore.Inifile.Filename = 'firststeps.ini'
    FormStore.Inifile.Section = 'Windows'
    StoreControls = True
    Left = 208
    Top = 80
  end
end
