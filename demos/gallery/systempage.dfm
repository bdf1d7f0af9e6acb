object SystemPage: TSystemPage
  Left = 0
  Top = 0
  Width = 952
  Height = 588
  TabOrder = 0
  object Details: TQELSystemDetails
    Left = 928
    Top = 540
  end
  object Volume: TQELDriveVolume
    Left = 896
    Top = 540
  end
  object Version: TQELVersionDetails
    Left = 864
    Top = 540
  end
  object Resources: TQELResourceInfo
    Left = 832
    Top = 540
    Interval = 1000
    Limits.GDIHandles = 5000
    OnLow = ResourcesLow
  end
  object Minutes: TQELTimeTrigger
    Left = 800
    Top = 540
    Triggers = <
      item
        Every = 1
      end>
    OnTrigger = MinutesTrigger
  end
  object Jokes: TQELJokeHolder
    Left = 768
    Top = 540
    Items.Strings = (
      'There are 10 kinds of people: those who count in twos, and the others.'
      '%'
      'A form walks into a bar. The bar says: you have not been created yet.'
      '%'
      'It works on my machine, said the machine.')
    Title = 'Did you know?'
  end
  object Texts: TQELStringHolder
    Left = 736
    Top = 540
    Strings.Strings = (
      'who=world'
      'greeting=Hello')
  end
  object Sound: TQELWavePlayer
    Left = 704
    Top = 540
    OnFinished = SoundFinished
  end
  object Startup: TQELStartup
    Left = 672
    Top = 540
    EntryName = 'Gallery of components'
  end
  object SoundDialog: TOpenDialog
    Left = 640
    Top = 540
    Filter = 'Sounds|*.wav'
    Options = [ofHideReadOnly, ofPathMustExist, ofFileMustExist]
  end
  object TopMost: TQELTopMost
    Left = 608
    Top = 540
    Active = False
  end
  object Aspect: TQELFormAspect
    Left = 576
    Top = 540
    Active = False
    AspectWidth = 3
    AspectHeight = 2
  end
  object Sizes: TQELFormSizes
    Left = 544
    Top = 540
    Active = False
    MaxWidth = 1100
  end
  object Hook: TQELFormHook
    Left = 512
    Top = 540
    Messages.Strings = (
      'WM_SIZE')
    OnAfterMessage = WindowSized
  end
  object Menu: TQELSystemMenu
    Left = 480
    Top = 540
    Active = False
    Menu = WindowMenu
  end
  object WindowMenu: TPopupMenu
    Left = 448
    Top = 540
    object HelloItem: TMenuItem
      Caption = '&Hello'
      OnClick = HelloClick
    end
  end
  object FactsHeading: TLabel
    Left = 16
    Top = 8
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Facts, which are listed on the right'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object FactsLine: TBevel
    Left = 16
    Top = 24
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object DetailsButton: TButton
    Left = 16
    Top = 34
    Width = 120
    Height = 26
    Caption = '&System'
    TabOrder = 0
    OnClick = DetailsClick
  end
  object DetailsText: TLabel
    Left = 150
    Top = 40
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'System, processor, memory, screen, language, user, folders'
  end
  object VolumeButton: TButton
    Left = 16
    Top = 68
    Width = 120
    Height = 26
    Caption = '&Volume'
    TabOrder = 1
    OnClick = VolumeClick
  end
  object VolumeText: TLabel
    Left = 150
    Top = 74
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'The drive C: its name, number, file system and sizes'
  end
  object VersionButton: TButton
    Left = 16
    Top = 102
    Width = 120
    Height = 26
    Caption = 'Versio&n'
    TabOrder = 2
    OnClick = VersionClick
  end
  object VersionText: TLabel
    Left = 150
    Top = 108
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'What the system''s kernel32.dll says about itself'
  end
  object ResourcesButton: TButton
    Left = 16
    Top = 136
    Width = 120
    Height = 26
    Caption = '&Resources'
    TabOrder = 3
    OnClick = ResourcesClick
  end
  object ResourcesText: TLabel
    Left = 150
    Top = 142
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'Memory, page file and handles now'
  end
  object TimesHeading: TLabel
    Left = 16
    Top = 184
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Times, sounds, sayings'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object TimesLine: TBevel
    Left = 16
    Top = 200
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object MinutesLabel: TLabel
    Left = 16
    Top = 210
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Each full minute is told here'
  end
  object SoundButton: TButton
    Left = 16
    Top = 232
    Width = 120
    Height = 26
    Caption = '&Play...'
    TabOrder = 4
    OnClick = SoundClick
  end
  object SoundText: TLabel
    Left = 150
    Top = 238
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'A sound from a file; a second click ends it'
  end
  object JokeButton: TButton
    Left = 16
    Top = 266
    Width = 120
    Height = 26
    Caption = 'Sa&ying'
    TabOrder = 5
    OnClick = JokeClick
  end
  object JokeText: TLabel
    Left = 150
    Top = 272
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'A saying, none twice before all have been seen'
  end
  object SessionHeading: TLabel
    Left = 16
    Top = 314
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'What starts with the session'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object SessionLine: TBevel
    Left = 16
    Top = 330
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object StartupButton: TButton
    Left = 16
    Top = 340
    Width = 120
    Height = 26
    Caption = 'S&tarts'
    TabOrder = 6
    OnClick = StartupClick
  end
  object StartupText: TLabel
    Left = 150
    Top = 346
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'Asks first; the same button takes it back'
  end
  object HolderHeading: TLabel
    Left = 16
    Top = 388
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'A text with names between percent signs'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object HolderLine: TBevel
    Left = 16
    Top = 404
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object TemplateEdit: TEdit
    Left = 16
    Top = 414
    Width = 440
    Height = 21
    AccessibleName = 'Text with names'
    TabOrder = 7
    Text = '%greeting%, %who%!'
    OnChange = TemplateChange
  end
  object ExpandedLabel: TLabel
    Left = 16
    Top = 442
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Hello, world!'
  end
  object WindowHeading: TLabel
    Left = 16
    Top = 476
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'This window'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object WindowLine: TBevel
    Left = 16
    Top = 492
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object TopMostCheck: TCheckBox
    Left = 16
    Top = 500
    Width = 140
    Height = 19
    Caption = 'Stays on &top'
    TabOrder = 9
    OnClick = WindowClick
  end
  object AspectCheck: TCheckBox
    Left = 160
    Top = 500
    Width = 200
    Height = 19
    Caption = '&Keeps 3 : 2 while it is sized'
    TabOrder = 10
    OnClick = WindowClick
  end
  object SizesCheck: TCheckBox
    Left = 16
    Top = 524
    Width = 140
    Height = 19
    Caption = 'Not &wider than 1100'
    TabOrder = 11
    OnClick = WindowClick
  end
  object MenuCheck: TCheckBox
    Left = 160
    Top = 524
    Width = 200
    Height = 19
    Caption = 'An entry in the system &menu'
    TabOrder = 12
    OnClick = WindowClick
  end
  object SizeLabel: TLabel
    Left = 16
    Top = 552
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Its size is told here when it changes'
  end
  object ListedHeading: TLabel
    Left = 480
    Top = 8
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'What is told'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object ListedLine: TBevel
    Left = 480
    Top = 24
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object Told: TMemo
    Left = 480
    Top = 34
    Width = 456
    Height = 420
    AccessibleName = 'What is told'
    ReadOnly = True
    ScrollBars = ssBoth
    TabOrder = 8
    WordWrap = False
  end
end
