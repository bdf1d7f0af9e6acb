object MailerForm: TMailerForm
  Left = 120
  Top = 90
  Constraints.MinHeight = 280
  Constraints.MinWidth = 560
  Caption = 'Mailer'
  ClientHeight = 400
  ClientWidth = 660
  Color = clBtnFace
  ShowHint = True
  OnClose = FormClose
  object ToolPanel: TPanel
    Left = 0
    Top = 0
    Width = 660
    Height = 41
    Align = alTop
    BevelOuter = bvNone
    TabOrder = 0
    object Gauge: TQELGauge
      Left = 290
      Top = 6
      Width = 270
      Height = 29
      Anchors = [akLeft, akTop, akRight]
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clBlack
      Font.Height = -11
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      BevelInner.FrameStyle = frameLowered
      Borderwidth = 2
      Kind = kHorizontal
      SegmentWidth = 4
      SegmentColor = clGreen
    end
    object FetchButton: TButton
      Left = 8
      Top = 8
      Width = 84
      Height = 25
      Action = FetchAction
      TabOrder = 0
    end
    object ComposeButton: TButton
      Left = 98
      Top = 8
      Width = 84
      Height = 25
      Action = ComposeAction
      TabOrder = 1
    end
    object AccountButton: TButton
      Left = 188
      Top = 8
      Width = 84
      Height = 25
      Action = AccountAction
      TabOrder = 2
    end
    object AbortButton: TButton
      Left = 568
      Top = 8
      Width = 84
      Height = 25
      Anchors = [akTop, akRight]
      Action = AbortAction
      TabOrder = 3
    end
  end
  object MailList: TListBox
    Left = 0
    Top = 41
    Width = 230
    Height = 340
    Align = alLeft
    TabOrder = 1
    OnClick = MailListClick
  end
  object MailSplitter: TSplitter
    Left = 230
    Top = 41
    Width = 4
    Height = 340
    AutoSnap = False
    MinSize = 120
    ResizeStyle = rsUpdate
  end
  object MailPanel: TPanel
    Left = 234
    Top = 41
    Width = 426
    Height = 340
    Align = alClient
    BevelOuter = bvNone
    TabOrder = 2
    object HeaderPanel: TPanel
      Left = 0
      Top = 0
      Width = 426
      Height = 68
      Align = alTop
      BevelOuter = bvNone
      TabOrder = 0
      object HeaderLabel: TLabel
        Left = 8
        Top = 6
        Width = 410
        Height = 58
        Anchors = [akLeft, akTop, akRight]
        AutoSize = False
        ShowAccelChar = False
      end
    end
    object TextMemo: TMemo
      Left = 0
      Top = 68
      Width = 426
      Height = 216
      Align = alClient
      ReadOnly = True
      ScrollBars = ssVertical
      TabOrder = 1
    end
    object AttachmentPanel: TPanel
      Left = 0
      Top = 284
      Width = 426
      Height = 56
      Align = alBottom
      BevelOuter = bvNone
      TabOrder = 2
      object AttachmentList: TListBox
        Left = 0
        Top = 0
        Width = 322
        Height = 56
        Align = alClient
        TabOrder = 0
        OnDblClick = SaveExecute
      end
      object SavePanel: TPanel
        Left = 322
        Top = 0
        Width = 104
        Height = 56
        Align = alRight
        BevelOuter = bvNone
        TabOrder = 1
        object SaveButton: TButton
          Left = 10
          Top = 8
          Width = 84
          Height = 25
          Action = SaveAction
          TabOrder = 0
        end
      end
    end
  end
  object StatusBar: TStatusBar
    Left = 0
    Top = 381
    Width = 660
    Height = 19
    Panels = <>
    SimplePanel = True
  end
  object Actions: TActionList
    Left = 264
    Top = 168
    object FetchAction: TAction
      Caption = '&Fetch'
      Hint = 'Fetches what is in the mailbox (F5)'
      ShortCut = 116
      OnExecute = FetchExecute
    end
    object ComposeAction: TAction
      Caption = '&Write...'
      Hint = 'Writes a mail (Ctrl+N)'
      ShortCut = 16462
      OnExecute = ComposeExecute
    end
    object AccountAction: TAction
      Caption = 'A&ccount...'
      Hint = 'Says who sends and where the mailbox is'
      OnExecute = AccountExecute
    end
    object AbortAction: TAction
      Caption = '&Abort'
      Hint = 'Ends what is being sent or fetched (Esc)'
      ShortCut = 27
      OnExecute = AbortExecute
    end
    object SaveAction: TAction
      Caption = '&Save as...'
      Enabled = False
      Hint = 'Saves the attachment (Ctrl+S)'
      ShortCut = 16467
      OnExecute = SaveExecute
      OnUpdate = SaveUpdate
    end
  end
  object SaveDialog: TSaveDialog
    Filter = 'All files|*.*'
    Options = [ofOverwritePrompt, ofHideReadOnly, ofNoChangeDir, ofPathMustExist, ofEnableSizing]
    Title = 'Save attachment'
    Left = 264
    Top = 120
  end
  object Settings: TQELStoreData
    DataStore.Datatype = sIniFile
    DataStore.Inifile.Filename = 'mailer.ini'
    DataStore.Inifile.Section = 'Account'
    Left = 304
    Top = 120
  end
  object Sender: TQELSMTPMail
    Format = mfStandard
    Timeout = 60000
    OnCertificate = MailCertificate
    SkipRefused = True
    OnError = MailError
    OnAfterSend = MailSent
    OnEncodeStart = EncodeStart
    OnEncodeProgress = MailProgress
    OnSendProgress = MailProgress
    Left = 344
    Top = 120
  end
  object Receiver: TQELPOPMail
    Format = mfStandard
    Timeout = 60000
    OnCertificate = MailCertificate
    SkipBadMessages = True
    OnError = MailError
    BeforeRetrieve = MailBegins
    AfterRetrieve = MailFetched
    OnRetrieveProgress = MailProgress
    Left = 384
    Top = 120
  end
end
