object TreeItemsForm: TTreeItemsForm
  Left = 200
  Top = 160
  BorderIcons = [biSystemMenu]
  Caption = 'Items'
  ClientHeight = 330
  ClientWidth = 480
  Position = poScreenCenter
  object View: TTreeView
    Left = 0
    Top = 0
    Width = 290
    Height = 289
    Align = alClient
    DragMode = dmAutomatic
    HideSelection = False
    OnChange = ViewChange
    OnDragDrop = ViewDragDrop
    OnDragOver = ViewDragOver
    OnEdited = ViewEdited
    OnKeyDown = ViewKey
    TabOrder = 0
  end
  object CommandPanel: TPanel
    Left = 290
    Top = 0
    Width = 190
    Height = 289
    Align = alRight
    BevelOuter = bvNone
    TabOrder = 1
    object NewItemButton: TButton
      Left = 6
      Top = 8
      Width = 84
      Height = 25
      Caption = '&New Item'
      OnClick = NewItemClick
      TabOrder = 0
    end
    object SubItemButton: TButton
      Left = 96
      Top = 8
      Width = 84
      Height = 25
      Caption = 'New &Subitem'
      OnClick = SubItemClick
      TabOrder = 1
    end
    object DeleteButton: TButton
      Left = 6
      Top = 39
      Width = 84
      Height = 25
      Caption = '&Delete'
      OnClick = DeleteClick
      TabOrder = 2
    end
    object UpButton: TButton
      Left = 6
      Top = 70
      Width = 84
      Height = 25
      Caption = '&Up'
      OnClick = UpClick
      TabOrder = 3
    end
    object DownButton: TButton
      Left = 96
      Top = 70
      Width = 84
      Height = 25
      Caption = 'Do&wn'
      OnClick = DownClick
      TabOrder = 4
    end
    object NodeGroup: TGroupBox
      Left = 6
      Top = 108
      Width = 174
      Height = 152
      Caption = 'Item'
      TabOrder = 5
      object TextLabel: TLabel
        Left = 10
        Top = 20
        Width = 60
        Height = 13
        Caption = '&Text:'
        FocusControl = TextEdit
      end
      object TextEdit: TEdit
        Left = 10
        Top = 36
        Width = 154
        Height = 21
        OnChange = ValueChange
        TabOrder = 0
      end
      object ImageLabel: TLabel
        Left = 10
        Top = 68
        Width = 60
        Height = 13
        Caption = '&Image:'
        FocusControl = ImageEdit
      end
      object ImageEdit: TEdit
        Left = 104
        Top = 64
        Width = 44
        Height = 21
        OnChange = ValueChange
        TabOrder = 1
        Text = '-1'
      end
      object ImageUpDown: TUpDown
        Left = 148
        Top = 64
        Width = 16
        Height = 21
        Associate = ImageEdit
        Max = 9999
        Min = -1
        Position = -1
        TabOrder = 2
      end
      object SelectedLabel: TLabel
        Left = 10
        Top = 96
        Width = 60
        Height = 13
        Caption = 'Se&lected:'
        FocusControl = SelectedEdit
      end
      object SelectedEdit: TEdit
        Left = 104
        Top = 92
        Width = 44
        Height = 21
        OnChange = ValueChange
        TabOrder = 3
        Text = '-1'
      end
      object SelectedUpDown: TUpDown
        Left = 148
        Top = 92
        Width = 16
        Height = 21
        Associate = SelectedEdit
        Max = 9999
        Min = -1
        Position = -1
        TabOrder = 4
      end
      object StateLabel: TLabel
        Left = 10
        Top = 124
        Width = 60
        Height = 13
        Caption = 'Stat&e:'
        FocusControl = StateEdit
      end
      object StateEdit: TEdit
        Left = 104
        Top = 120
        Width = 44
        Height = 21
        OnChange = ValueChange
        TabOrder = 5
        Text = '-1'
      end
      object StateUpDown: TUpDown
        Left = 148
        Top = 120
        Width = 16
        Height = 21
        Associate = StateEdit
        Max = 9999
        Min = -1
        Position = -1
        TabOrder = 6
      end
    end
  end
  object BottomPanel: TPanel
    Left = 0
    Top = 289
    Width = 480
    Height = 41
    Align = alBottom
    BevelOuter = bvNone
    TabOrder = 2
    object ButtonPanel: TPanel
      Left = 300
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
        Default = True
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
