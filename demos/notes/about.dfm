object AboutForm: TAboutForm
  Left = 300
  Top = 220
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'About Notes'
  ClientHeight = 158
  ClientWidth = 360
  Color = clBtnFace
  Position = poScreenCenter
  object TitleLabel: TQELLabel
    Left = 0
    Top = 0
    Width = 360
    Height = 50
    Align = alTop
    Alignment = taCenter
    Caption = 'Notes'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWhite
    Font.Height = -37
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    Font3D.Style3D = fontRaised
    Font3D.Offset = 2
    Frame.FrameStyle = frameNone
    Background = TitleBackground
    ParentFont = False
  end
  object PictureImage: TImage
    Left = 20
    Top = 68
    Width = 32
    Height = 32
    Stretch = True
  end
  object TextLabel: TLabel
    Left = 68
    Top = 66
    Width = 280
    Height = 45
    AutoSize = False
    Caption = 'Edits text files. Its window, files and options are remembered, and text that is not saved is kept safe.'
    WordWrap = True
  end
  object OkButton: TButton
    Left = 140
    Top = 120
    Width = 80
    Height = 25
    Cancel = True
    Caption = 'OK'
    Default = True
    ModalResult = mrOk
    TabOrder = 0
  end
  object TitleBackground: TQELBackground
    Gradient.BeginColor = $00A0522D
    Gradient.EndColor = $00E8B878
    Left = 320
    Top = 8
  end
end
