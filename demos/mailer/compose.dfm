object ComposeForm: TComposeForm
  Left = 180
  Top = 130
  ActiveControl = ToEdit
  BorderIcons = [biSystemMenu]
  Constraints.MinHeight = 336
  Constraints.MinWidth = 360
  Caption = 'New mail'
  ClientHeight = 386
  ClientWidth = 500
  Color = clBtnFace
  Position = poScreenCenter
  ShowHint = True
  object ToLabel: TLabel
    Left = 12
    Top = 14
    Width = 60
    Height = 13
    Caption = '&To:'
    FocusControl = ToEdit
  end
  object ToEdit: TEdit
    Left = 80
    Top = 10
    Width = 408
    Height = 21
    Anchors = [akLeft, akTop, akRight]
    Hint = 'Addresses with commas between them'
    TabOrder = 0
  end
  object CcLabel: TLabel
    Left = 12
    Top = 42
    Width = 60
    Height = 13
    Caption = '&Cc:'
    FocusControl = CcEdit
  end
  object CcEdit: TEdit
    Left = 80
    Top = 38
    Width = 408
    Height = 21
    Anchors = [akLeft, akTop, akRight]
    Hint = 'Who gets it, too'
    TabOrder = 1
  end
  object BccLabel: TLabel
    Left = 12
    Top = 70
    Width = 60
    Height = 13
    Caption = '&Bcc:'
    FocusControl = BccEdit
  end
  object BccEdit: TEdit
    Left = 80
    Top = 66
    Width = 408
    Height = 21
    Anchors = [akLeft, akTop, akRight]
    Hint = 'Who gets it, too, without the others seeing that'
    TabOrder = 2
  end
  object SubjectLabel: TLabel
    Left = 12
    Top = 98
    Width = 60
    Height = 13
    Caption = 'S&ubject:'
    FocusControl = SubjectEdit
  end
  object SubjectEdit: TEdit
    Left = 80
    Top = 94
    Width = 408
    Height = 21
    Anchors = [akLeft, akTop, akRight]
    TabOrder = 3
  end
  object TextMemo: TMemo
    Left = 12
    Top = 124
    Width = 476
    Height = 150
    Anchors = [akLeft, akTop, akRight, akBottom]
    ScrollBars = ssVertical
    TabOrder = 4
  end
  object FileList: TListBox
    Left = 12
    Top = 282
    Width = 384
    Height = 58
    Anchors = [akLeft, akRight, akBottom]
    TabOrder = 5
    OnClick = FilesClick
  end
  object AttachButton: TButton
    Left = 404
    Top = 282
    Width = 84
    Height = 25
    Anchors = [akRight, akBottom]
    Caption = '&Attach...'
    TabOrder = 6
    OnClick = AttachClick
  end
  object RemoveButton: TButton
    Left = 404
    Top = 312
    Width = 84
    Height = 25
    Anchors = [akRight, akBottom]
    Caption = '&Remove'
    Enabled = False
    TabOrder = 7
    OnClick = RemoveClick
  end
  object SendButton: TButton
    Left = 312
    Top = 352
    Width = 84
    Height = 25
    Anchors = [akRight, akBottom]
    Caption = '&Send'
    Default = True
    TabOrder = 8
    OnClick = SendClick
  end
  object CancelButton: TButton
    Left = 404
    Top = 352
    Width = 84
    Height = 25
    Anchors = [akRight, akBottom]
    Cancel = True
    Caption = 'Cancel'
    ModalResult = mrCancel
    TabOrder = 9
  end
  object OpenDialog: TOpenDialog
    Filter = 'All files|*.*'
    Options = [ofHideReadOnly, ofNoChangeDir, ofAllowMultiSelect, ofPathMustExist, ofFileMustExist, ofEnableSizing]
    Title = 'Attach'
    Left = 24
    Top = 84
  end
end
