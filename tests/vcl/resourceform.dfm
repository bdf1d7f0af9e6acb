object ResourceForm: TResourceForm
  Left = 60
  Top = 70
  Caption = 'Straight from the program'
  ClientHeight = 90
  ClientWidth = 210
  Position = poScreenCenter
  Visible = True
  OnCreate = FormCreate
  OnDestroy = FormDestroy
  OnShow = FormShow
  object Menu1: TPopupMenu
    object Item1: TMenuItem
      Caption = 'Item'
    end
  end
end
