inherited OrderForm: TOrderForm
  Caption = 'order'
  ClientWidth = 300
  inherited Title: TLabel
    Left = 20
  end
  object Amount: TEdit [1]
    Left = 120
    Top = 8
    Width = 60
    Height = 21
    Text = '5'
  end
  inherited Ok: TButton
    Caption = 'Order'
    OnClick = OrderClick
  end
  inherited Cancel: TButton
    OnClick = nil
  end
  inline Sender: TAddressFrame
    Left = 190
    Top = 0
    inherited Street: TEdit
      Text = 'Sender'#39's street'
      OnChange = SenderStreetChange
    end
  end
  inline Receiver: TAddressFrame
    Left = 190
    Top = 40
  end
  object First: TButton
    Left = 190
    Top = 70
    Width = 75
    Height = 15
    PopupMenu = Store.Menu
  end
end
