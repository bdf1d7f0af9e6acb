object DialogsPage: TDialogsPage
  Left = 0
  Top = 0
  Width = 952
  Height = 588
  TabOrder = 0
  object Question: TQELMsgDlg
    Left = 800
    Top = 540
    Title = 'Question'
    Text = 'Shall %s be saved before the program ends?'
    Values.Strings = (
      'the letter')
    Button1.Caption = '&Save'
    Button2.Caption = '&Throw away'
    Button3.Caption = '&Cancel'
    CancelButton = 3
  end
  object Countdown: TQELMsgDlg
    Left = 832
    Top = 540
    Title = 'Countdown'
    Text = 'The default button is the answer in five seconds.'
    Button1.Caption = '&Now'
    Button2.Caption = '&Later'
    DefaultButton = 2
    Timeout = 5
  end
  object Selection: TQELMsgSelect
    Left = 864
    Top = 540
    Title = 'Choice'
    Text = 'In which order?'
    Options.Strings = (
      'By &name'
      'By &size'
      'By &date')
  end
  object Message: TQELMsgBox
    Left = 896
    Top = 540
    Caption = 'Message'
    Text = 'Is this the system''s own box?'
    Icon = miQuestion
    Buttons = mbYesNo
  end
  object About: TQELShellAbout
    Left = 928
    Top = 540
    Title = 'Gallery'
    Text = 'The components, to try'
  end
  object Folders: TQELFolderBrowser
    Left = 768
    Top = 540
    Options = [fbNewFolder, fbEdit]
    Title = 'Where to?'
  end
  object Tips: TQELTipTricks
    Left = 736
    Top = 540
    Title = 'Tips'
    Force = True
    Tips.Strings = (
      'The palette''s search takes any part of a class''s name.'
      ''
      'Ctrl and an arrow move what is selected by one pixel,'
      'Shift and an arrow size it.'
      ''
      'A double click on an event makes its handler.')
  end
  object Password: TQELPasswordDlg
    Left = 704
    Top = 540
    Title = 'Password'
    Username = 'guest'
    OnCheck = PasswordCheck
  end
  object Access: TQELQueryAccess
    Left = 672
    Top = 540
    Title = 'Code'
    LockAfter = 3
    LockTime = 10
    ValidFor = 30
  end
  object Page: TQELPageSetupDialog
    Left = 608
    Top = 540
    MarginBottom = 2000
    MarginTop = 2000
  end
  object OwnHeading: TLabel
    Left = 16
    Top = 8
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Messages of the library: Ctrl+C copies them'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object OwnLine: TBevel
    Left = 16
    Top = 24
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object QuestionButton: TButton
    Left = 16
    Top = 34
    Width = 120
    Height = 26
    Caption = '&Question'
    TabOrder = 0
    OnClick = QuestionClick
  end
  object QuestionText: TLabel
    Left = 150
    Top = 40
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'Buttons with captions of their own; Escape is one of them'
  end
  object CountdownButton: TButton
    Left = 16
    Top = 68
    Width = 120
    Height = 26
    Caption = 'C&ountdown'
    TabOrder = 1
    OnClick = CountdownClick
  end
  object CountdownText: TLabel
    Left = 150
    Top = 74
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'The default button is pressed after five seconds'
  end
  object SelectionButton: TButton
    Left = 16
    Top = 102
    Width = 120
    Height = 26
    Caption = '&Choice'
    TabOrder = 2
    OnClick = SelectionClick
  end
  object SelectionText: TLabel
    Left = 150
    Top = 108
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'One of some options, or of a list where they are many'
  end
  object TipsButton: TButton
    Left = 16
    Top = 136
    Width = 120
    Height = 26
    Caption = '&Tips'
    TabOrder = 3
    OnClick = TipsClick
  end
  object TipsText: TLabel
    Left = 150
    Top = 142
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'A tip at each start, as long as they are wanted'
  end
  object PasswordButton: TButton
    Left = 16
    Top = 170
    Width = 120
    Height = 26
    Caption = '&Password'
    TabOrder = 4
    OnClick = PasswordClick
  end
  object PasswordText: TLabel
    Left = 150
    Top = 176
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'A name and a password: it is "open"'
  end
  object AccessButton: TButton
    Left = 16
    Top = 204
    Width = 120
    Height = 26
    Caption = 'Co&de'
    TabOrder = 5
    OnClick = AccessClick
  end
  object AccessText: TLabel
    Left = 150
    Top = 210
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'The code is 1234; three wrong ones lock it for 10 seconds'
  end
  object SplashButton: TButton
    Left = 16
    Top = 238
    Width = 120
    Height = 26
    Caption = '&Splash'
    TabOrder = 6
    OnClick = SplashClick
  end
  object SplashText: TLabel
    Left = 150
    Top = 244
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'What is shown while a program starts'
  end
  object SystemHeading: TLabel
    Left = 16
    Top = 286
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Boxes of the system'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object SystemLine: TBevel
    Left = 16
    Top = 302
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object MessageButton: TButton
    Left = 16
    Top = 312
    Width = 120
    Height = 26
    Caption = '&Message'
    TabOrder = 7
    OnClick = MessageClick
  end
  object MessageText: TLabel
    Left = 150
    Top = 318
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'The system''s message box'
  end
  object AboutButton: TButton
    Left = 16
    Top = 346
    Width = 120
    Height = 26
    Caption = '&About'
    TabOrder = 8
    OnClick = AboutClick
  end
  object AboutText: TLabel
    Left = 150
    Top = 352
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'The system''s about box'
  end
  object FoldersButton: TButton
    Left = 16
    Top = 380
    Width = 120
    Height = 26
    Caption = '&Folders'
    TabOrder = 9
    OnClick = FoldersClick
  end
  object FoldersText: TLabel
    Left = 150
    Top = 386
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'The system''s folder dialog'
  end
  object PageButton: TButton
    Left = 16
    Top = 414
    Width = 120
    Height = 26
    Caption = 'Pa&ge'
    TabOrder = 10
    OnClick = PageClick
  end
  object PageText: TLabel
    Left = 150
    Top = 420
    Width = 306
    Height = 13
    AutoSize = False
    Caption = 'The system''s page set-up, where there is a printer'
  end
  object AnswersHeading: TLabel
    Left = 480
    Top = 8
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'What was answered'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object AnswersLine: TBevel
    Left = 480
    Top = 24
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object Answers: TMemo
    Left = 480
    Top = 34
    Width = 456
    Height = 200
    AccessibleName = 'Answers'
    ReadOnly = True
    ScrollBars = ssVertical
    TabOrder = 20
  end
end
