object MainForm: TMainForm
  Left = 40
  Top = 30
  Width = 240
  Height = 120
  Caption = 'Made from a form file: Gr'#252#223'e'
  OnShow = FormShow
end
