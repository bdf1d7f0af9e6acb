object DesktopPage: TDesktopPage
  Left = 0
  Top = 0
  Width = 952
  Height = 588
  TabOrder = 0
  object Clip: TQELClipboard
    Left = 928
    Top = 540
    HistoryCount = 8
    OnChange = ClipChange
  end
  object Screen: TQELScreenCanvas
    Left = 896
    Top = 540
  end
  object Mouse: TQELMouseController
    Left = 864
    Top = 540
    IdleTime = 10000
    OnIdle = MouseIdle
  end
  object Keys: TQELSystemKeys
    Left = 832
    Top = 540
    Keys = <
      item
        ShortCut = 49271
      end>
    OnPress = KeysPress
    OnTaken = KeysTaken
  end
  object Saver: TQELScreenSaver
    Left = 800
    Top = 540
    OnStart = SaverStart
    OnStop = SaverStop
  end
  object Paper: TQELWallPaper
    Left = 768
    Top = 540
    Preview = True
    Style = wpFit
  end
  object Ending: TQELExitWindows
    Left = 736
    Top = 540
  end
  object Drives: TQELCDTriggers
    Left = 704
    Top = 540
    OnInsert = DriveInsert
    OnRemove = DriveRemove
  end
  object Events: TQELApplication
    Left = 672
    Top = 540
    OnActivate = EventsActivate
    OnDeactivate = EventsDeactivate
    OnDisplayChange = EventsDisplayChange
    OnSettingsChange = EventsSettingsChange
  end
  object Aborts: TQELIllegalAbort
    Left = 608
    Top = 540
    AbortStore.Enabled = True
    AbortStore.Registry.Path = 'Software\QELGallery'
    AbortStore.Registry.Section = 'Runs'
    OnIllegalAbort = AbortsIllegalAbort
  end
  object PaperDialog: TOpenDialog
    Left = 640
    Top = 540
    Filter = 'Bitmaps|*.bmp'
    Options = [ofHideReadOnly, ofPathMustExist, ofFileMustExist]
  end
  object ClipboardHeading: TLabel
    Left = 16
    Top = 8
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'The clipboard, and what was on it: a double click puts it there again'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object ClipboardLine: TBevel
    Left = 16
    Top = 24
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object History: TListBox
    Left = 16
    Top = 34
    Width = 440
    Height = 110
    AccessibleName = 'What was on the clipboard'
    ItemHeight = 13
    TabOrder = 0
    OnDblClick = HistoryDblClick
  end
  object PicturesHeading: TLabel
    Left = 16
    Top = 160
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'The screen'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object PicturesLine: TBevel
    Left = 16
    Top = 176
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object CaptureButton: TButton
    Left = 16
    Top = 186
    Width = 140
    Height = 26
    Caption = '&Picture of this window'
    TabOrder = 1
    OnClick = CaptureClick
  end
  object DrawButton: TButton
    Left = 164
    Top = 186
    Width = 140
    Height = 26
    Caption = '&Draw over it'
    TabOrder = 2
    OnClick = DrawClick
  end
  object RestoreButton: TButton
    Left = 312
    Top = 186
    Width = 140
    Height = 26
    Caption = '&Take it away'
    TabOrder = 3
    OnClick = RestoreClick
  end
  object Shot: TImage
    Left = 16
    Top = 222
    Width = 440
    Height = 150
    Center = True
    Stretch = True
  end
  object PointerHeading: TLabel
    Left = 16
    Top = 388
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'The mouse and the keys'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object PointerLine: TBevel
    Left = 16
    Top = 404
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object SnapButton: TButton
    Left = 16
    Top = 414
    Width = 140
    Height = 26
    Caption = '&Jump here and back'
    TabOrder = 4
    OnClick = SnapClick
  end
  object KeepCheck: TCheckBox
    Left = 170
    Top = 418
    Width = 130
    Height = 19
    Caption = '&Kept on this page'
    TabOrder = 5
    OnClick = CheckClick
  end
  object HideCheck: TCheckBox
    Left = 310
    Top = 418
    Width = 130
    Height = 19
    Caption = 'Pointer &hidden'
    TabOrder = 6
    OnClick = CheckClick
  end
  object BlockCheck: TCheckBox
    Left = 170
    Top = 444
    Width = 130
    Height = 19
    Caption = '&Alt+F4 blocked'
    TabOrder = 7
    OnClick = CheckClick
  end
  object DisplayCheck: TCheckBox
    Left = 310
    Top = 444
    Width = 130
    Height = 19
    Caption = 'Display stays &on'
    TabOrder = 8
    OnClick = CheckClick
  end
  object KeyLabel: TLabel
    Left = 16
    Top = 474
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Ctrl+Alt+F8 is heard in every program'
  end
  object GrowingHeading: TLabel
    Left = 480
    Top = 8
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'A form that grows and shrinks'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object GrowingLine: TBevel
    Left = 480
    Top = 24
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object GrowLabel: TLabel
    Left = 480
    Top = 38
    Width = 80
    Height = 13
    AutoSize = False
    Caption = '&Out of'
    FocusControl = GrowCombo
  end
  object GrowCombo: TComboBox
    Left = 560
    Top = 34
    Width = 160
    Height = 21
    AccessibleName = 'Out of'
    ItemHeight = 13
    Style = csDropDownList
    TabOrder = 9
    Items.Strings = (
      'Form top border'
      'Form bottom border'
      'Form left border'
      'Form right border'
      'Screen top border'
      'Screen bottom border'
      'Screen left border'
      'Screen right border'
      'Form top left'
      'Form bottom left'
      'Form top right'
      'Form bottom right'
      'Screen top left'
      'Screen bottom left'
      'Screen top right'
      'Screen bottom right'
      'Form middle'
      'Screen middle')
  end
  object RegionCheck: TCheckBox
    Left = 734
    Top = 36
    Width = 110
    Height = 19
    Caption = 'The &window itself'
    TabOrder = 10
  end
  object GrowButton: TButton
    Left = 856
    Top = 32
    Width = 80
    Height = 26
    Caption = '&Show'
    TabOrder = 11
    OnClick = GrowClick
  end
  object SessionHeading: TLabel
    Left = 480
    Top = 76
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'The desktop and the session: nothing happens without a question'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object SessionLine: TBevel
    Left = 480
    Top = 92
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object PaperButton: TButton
    Left = 480
    Top = 102
    Width = 120
    Height = 26
    Caption = 'Desktop pictu&re...'
    TabOrder = 12
    OnClick = PaperClick
  end
  object BackButton: TButton
    Left = 604
    Top = 102
    Width = 70
    Height = 26
    Caption = '&Back'
    TabOrder = 13
    OnClick = BackClick
  end
  object LockButton: TButton
    Left = 678
    Top = 102
    Width = 80
    Height = 26
    Caption = '&Lock...'
    TabOrder = 14
    OnClick = LockClick
  end
  object LogOffButton: TButton
    Left = 762
    Top = 102
    Width = 90
    Height = 26
    Caption = 'Lo&g off...'
    TabOrder = 15
    OnClick = LogOffClick
  end
  object TrayButton: TButton
    Left = 856
    Top = 102
    Width = 72
    Height = 26
    Caption = 'Tra&y D'
    TabOrder = 16
    OnClick = TrayClick
  end
  object ListedHeading: TLabel
    Left = 480
    Top = 148
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'What the application and the system tell'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object ListedLine: TBevel
    Left = 480
    Top = 164
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object Told: TMemo
    Left = 480
    Top = 174
    Width = 456
    Height = 330
    AccessibleName = 'What is told'
    ReadOnly = True
    ScrollBars = ssBoth
    TabOrder = 17
    WordWrap = False
  end
end
