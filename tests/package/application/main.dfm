object MainForm: TMainForm
  Left = 40
  Top = 30
  Caption = 'Made from a form file: Gr'#252#223'e'
  ClientHeight = 100
  ClientWidth = 220
  OnShow = FormShow
  object Hello: TQELButton
    Left = 50
    Top = 30
    Width = 120
    Height = 36
    Background = Sky
    Caption = '&Hello'
    OnClick = HelloClick
  end
  object Sky: TQELBackground
    Gradient.BeginColor = clWhite
    Gradient.EndColor = clSilver
  end
end
