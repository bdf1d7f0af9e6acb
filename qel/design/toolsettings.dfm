object ToolSettingsForm: TQELToolSettingsForm
  Left = 200
  Top = 120
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'Properties of the QEL tools'
  ClientHeight = 345
  ClientWidth = 440
  Position = poScreenCenter
  object FilesLabel: TLabel
    Left = 12
    Top = 10
    Width = 300
    Height = 13
    Caption = 'My personal files, one a line: caption=file'
  end
  object FilesMemo: TMemo
    Left = 12
    Top = 26
    Width = 416
    Height = 80
    ScrollBars = ssBoth
    TabOrder = 0
    WordWrap = False
  end
  object LinksLabel: TLabel
    Left = 12
    Top = 114
    Width = 300
    Height = 13
    Caption = 'My personal links, one a line: caption=address'
  end
  object LinksMemo: TMemo
    Left = 12
    Top = 130
    Width = 416
    Height = 80
    ScrollBars = ssBoth
    TabOrder = 1
    WordWrap = False
  end
  object HomePageLabel: TLabel
    Left = 12
    Top = 223
    Width = 100
    Height = 13
    Caption = 'Home page'
  end
  object HomePageEdit: TEdit
    Left = 120
    Top = 220
    Width = 308
    Height = 21
    TabOrder = 2
  end
  object MailLabel: TLabel
    Left = 12
    Top = 250
    Width = 100
    Height = 13
    Caption = 'E-mail address'
  end
  object MailEdit: TEdit
    Left = 120
    Top = 247
    Width = 308
    Height = 21
    TabOrder = 3
  end
  object PagerLabel: TLabel
    Left = 12
    Top = 277
    Width = 100
    Height = 13
    Caption = 'Pager address'
  end
  object PagerEdit: TEdit
    Left = 120
    Top = 274
    Width = 308
    Height = 21
    TabOrder = 4
  end
  object OkButton: TButton
    Left = 272
    Top = 308
    Width = 75
    Height = 25
    Caption = 'OK'
    Default = True
    ModalResult = mrOk
    TabOrder = 5
  end
  object CancelButton: TButton
    Left = 353
    Top = 308
    Width = 75
    Height = 25
    Cancel = True
    Caption = 'Cancel'
    ModalResult = mrCancel
    TabOrder = 6
  end
end
