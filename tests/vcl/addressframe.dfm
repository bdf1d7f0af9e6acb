object AddressFrame: TAddressFrame
  Width = 100
  Height = 30
  object Street: TEdit
    Left = 2
    Top = 2
    Width = 80
    Height = 21
    Text = 'street'
    OnChange = StreetChange
  end
  object Menu: TPopupMenu
    Left = 8
    Top = 4
  end
end
