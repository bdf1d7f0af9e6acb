object ImageListForm: TImageListForm
  Left = 200
  Top = 160
  BorderIcons = [biSystemMenu]
  Caption = 'Images'
  ClientHeight = 281
  ClientWidth = 424
  OnDropFiles = FilesDropped
  Position = poScreenCenter
  object View: TListView
    Left = 0
    Top = 0
    Width = 331
    Height = 240
    Align = alClient
    HideSelection = False
    LargeImages = Images
    MultiSelect = True
    OnKeyDown = ViewKey
    ReadOnly = True
    TabOrder = 0
  end
  object CommandPanel: TPanel
    Left = 331
    Top = 0
    Width = 93
    Height = 240
    Align = alRight
    BevelOuter = bvNone
    TabOrder = 1
    object AddButton: TButton
      Left = 6
      Top = 8
      Width = 75
      Height = 25
      Caption = '&Add...'
      OnClick = AddClick
      TabOrder = 0
    end
    object DeleteButton: TButton
      Left = 6
      Top = 39
      Width = 75
      Height = 25
      Caption = '&Delete'
      OnClick = DeleteClick
      TabOrder = 1
    end
    object UpButton: TButton
      Left = 6
      Top = 78
      Width = 75
      Height = 25
      Caption = '&Up'
      OnClick = UpClick
      TabOrder = 2
    end
    object DownButton: TButton
      Left = 6
      Top = 109
      Width = 75
      Height = 25
      Caption = 'Do&wn'
      OnClick = DownClick
      TabOrder = 3
    end
    object ClearButton: TButton
      Left = 6
      Top = 148
      Width = 75
      Height = 25
      Caption = '&Clear'
      OnClick = ClearClick
      TabOrder = 4
    end
  end
  object BottomPanel: TPanel
    Left = 0
    Top = 240
    Width = 424
    Height = 41
    Align = alBottom
    BevelOuter = bvNone
    TabOrder = 2
    object CountLabel: TLabel
      Left = 12
      Top = 14
      Width = 160
      Height = 13
      Caption = '0 images'
    end
    object ButtonPanel: TPanel
      Left = 244
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
  object Images: TImageList
  end
end
