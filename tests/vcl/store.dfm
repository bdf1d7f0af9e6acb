object Store: TStore
  OnCreate = ModuleCreate
  OnDestroy = ModuleDestroy
  Left = 30
  Top = 40
  Width = 300
  Height = 200
  object Menu: TPopupMenu
    Left = 16
    Top = 24
    object Item1: TMenuItem
      Caption = 'Item'
    end
  end
end
