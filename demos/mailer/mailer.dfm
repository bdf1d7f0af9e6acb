object MailerForm: TMailerForm
  Left = 120
  Top = 90
  Constraints.MinHeight = 240
  Constraints.MinWidth = 360
  Caption = 'Mailer'
  ClientHeight = 400
  ClientWidth = 660
  Color = clBtnFace
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
      Caption = '&Fetch'
      TabOrder = 0
      OnClick = FetchClick
    end
    object ComposeButton: TButton
      Left = 98
      Top = 8
      Width = 84
      Height = 25
      Caption = '&Write...'
      TabOrder = 1
      OnClick = ComposeClick
    end
    object AccountButton: TButton
      Left = 188
      Top = 8
      Width = 84
      Height = 25
      Caption = 'A&ccount...'
      TabOrder = 2
      OnClick = AccountClick
    end
    object AbortButton: TButton
      Left = 568
      Top = 8
      Width = 84
      Height = 25
      Caption = '&Abort'
      TabOrder = 3
      OnClick = AbortClick
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
  object MailPanel: TPanel
    Left = 230
    Top = 41
    Width = 430
    Height = 340
    Align = alClient
    BevelOuter = bvNone
    TabOrder = 2
    object HeaderPanel: TPanel
      Left = 0
      Top = 0
      Width = 430
      Height = 68
      Align = alTop
      BevelOuter = bvNone
      TabOrder = 0
      object HeaderLabel: TLabel
        Left = 8
        Top = 6
        Width = 640
        Height = 58
        AutoSize = False
        ShowAccelChar = False
      end
    end
    object TextMemo: TMemo
      Left = 0
      Top = 68
      Width = 430
      Height = 216
      Align = alClient
      ReadOnly = True
      ScrollBars = ssVertical
      TabOrder = 1
    end
    object AttachmentPanel: TPanel
      Left = 0
      Top = 284
      Width = 430
      Height = 56
      Align = alBottom
      BevelOuter = bvNone
      TabOrder = 2
      object AttachmentList: TListBox
        Left = 0
        Top = 0
        Width = 326
        Height = 56
        Align = alClient
        TabOrder = 0
        OnClick = AttachmentListClick
        OnDblClick = SaveClick
      end
      object SavePanel: TPanel
        Left = 326
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
          Caption = '&Save as...'
          Enabled = False
          TabOrder = 0
          OnClick = SaveClick
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
    OnError = MailError
    OnAfterSend = MailSent
    OnEncodeStart = EncodeStart
    OnEncodeProgress = MailProgress
    OnSendProgress = MailProgress
    Left = 344
    Top = 120
  end
  object Receiver: TQELPOPMail
    OnError = MailError
    BeforeRetrieve = MailBegins
    AfterRetrieve = MailFetched
    OnRetrieveProgress = MailProgress
    Left = 384
    Top = 120
  end
end
