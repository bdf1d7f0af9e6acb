object BaseForm: TBaseForm
  Left = 60
  Top = 70
  Caption = 'base'
  ClientHeight = 90
  ClientWidth = 210
  Visible = True
  OnCreate = FormCreate
  OnDestroy = FormDestroy
  object Title: TLabel
    Left = 8
    Top = 8
    Caption = 'title'
  end
  object Ok: TButton
    Left = 8
    Top = 40
    Width = 75
    Height = 25
    Caption = 'OK'
    OnClick = OkClick
  end
  object Cancel: TButton
    Left = 90
    Top = 40
    Width = 75
    Height = 25
    Caption = 'Cancel'
    OnClick = OkClick
  end
end
