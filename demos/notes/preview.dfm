object PreviewForm: TPreviewForm
  Left = 180
  Top = 120
  ActiveControl = Preview
  Caption = 'Print preview'
  ClientHeight = 480
  ClientWidth = 640
  Color = clBtnFace
  Constraints.MinHeight = 240
  Constraints.MinWidth = 512
  Position = poMainFormCenter
  object ToolPanel: TPanel
    Left = 0
    Top = 0
    Width = 640
    Height = 37
    Align = alTop
    BevelOuter = bvNone
    TabOrder = 1
    object PrintButton: TButton
      Left = 6
      Top = 6
      Width = 80
      Height = 25
      Caption = '&Print'
      TabOrder = 0
      OnClick = PrintButtonClick
    end
    object PriorButton: TButton
      Left = 98
      Top = 6
      Width = 80
      Height = 25
      Caption = 'Pre&vious'
      TabOrder = 1
      OnClick = PriorButtonClick
    end
    object NextButton: TButton
      Left = 182
      Top = 6
      Width = 80
      Height = 25
      Caption = '&Next'
      TabOrder = 2
      OnClick = NextButtonClick
    end
    object SizeCombo: TComboBox
      Left = 274
      Top = 8
      Width = 110
      Height = 21
      AccessibleName = 'Size'
      Style = csDropDownList
      Items.Strings = (
        'Whole page'
        'Two pages'
        'Page width'
        '50 %'
        '100 %'
        '200 %')
      TabOrder = 3
      OnChange = SizeComboChange
    end
    object CloseButton: TButton
      Left = 396
      Top = 6
      Width = 80
      Height = 25
      Cancel = True
      Caption = '&Close'
      ModalResult = mrCancel
      TabOrder = 4
    end
  end
  object Preview: TPrintPreview
    Left = 0
    Top = 37
    Width = 640
    Height = 443
    Align = alClient
    TabOrder = 0
  end
end
