object StandardPage: TStandardPage
  Left = 0
  Top = 0
  Width = 952
  Height = 588
  TabOrder = 0
  object NumbersHeading: TLabel
    Left = 16
    Top = 8
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Numbers: each follows the others'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object NumbersLine: TBevel
    Left = 16
    Top = 24
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object ValueTrack: TTrackBar
    Left = 16
    Top = 34
    Width = 300
    Height = 34
    AccessibleName = 'Value'
    Max = 100
    Frequency = 10
    Position = 40
    TabOrder = 0
    OnChange = TrackChange
  end
  object ValueEdit: TEdit
    Left = 330
    Top = 38
    Width = 60
    Height = 21
    AccessibleName = 'Value as a number'
    TabOrder = 1
    Text = '40'
    OnExit = EditExit
  end
  object ValueSpin: TUpDown
    Left = 390
    Top = 38
    Width = 17
    Height = 21
    Associate = ValueEdit
    Max = 100
    Position = 40
    TabOrder = 2
    OnClick = SpinClick
  end
  object ValueScroll: TScrollBar
    Left = 16
    Top = 78
    Width = 300
    Height = 17
    AccessibleName = 'Value on a scroll bar'
    Max = 100
    Position = 40
    TabOrder = 3
    OnChange = ScrollChange
  end
  object ValueProgress: TProgressBar
    Left = 16
    Top = 106
    Width = 300
    Height = 17
    Max = 100
    Position = 40
    TabOrder = 4
  end
  object BusyProgress: TProgressBar
    Left = 330
    Top = 106
    Width = 126
    Height = 17
    Style = pbstMarquee
    TabOrder = 5
  end
  object ChoicesHeading: TLabel
    Left = 16
    Top = 140
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Choices'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object ChoicesLine: TBevel
    Left = 16
    Top = 156
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object ShapeGroup: TRadioGroup
    Left = 16
    Top = 166
    Width = 218
    Height = 134
    Caption = '&Shape'
    Columns = 2
    ItemIndex = 2
    Items.Strings = (
      'Rectangle'
      'Square'
      'Rounded'
      'Rounded square'
      'Ellipse'
      'Circle')
    TabOrder = 6
    OnClick = ShapeClick
  end
  object SampleShape: TShape
    Left = 240
    Top = 172
    Width = 100
    Height = 128
    Brush.Color = clAqua
    Pen.Width = 2
    Shape = stRoundRect
  end
  object SideChecks: TCheckListBox
    Left = 354
    Top = 172
    Width = 102
    Height = 128
    AccessibleName = 'Parts'
    Items.Strings = (
      'Fill'
      'Outline'
      'Thick outline')
    TabOrder = 7
    OnClickCheck = PartsClick
  end
  object KeysHeading: TLabel
    Left = 16
    Top = 316
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Keys and texts'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object KeysLine: TBevel
    Left = 16
    Top = 332
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object KeyCaption: TStaticText
    Left = 16
    Top = 344
    Width = 92
    Height = 17
    Caption = '&Key to press'
    FocusControl = SampleKey
    TabOrder = 8
  end
  object SampleKey: THotKey
    Left = 112
    Top = 342
    Width = 204
    Height = 21
    AccessibleName = 'Key to press'
    TabOrder = 9
    OnChange = KeyChange
  end
  object KeyText: TLabel
    Left = 330
    Top = 345
    Width = 126
    Height = 13
    AutoSize = False
    Caption = ''
  end
  object DrawnHeading: TLabel
    Left = 16
    Top = 380
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Drawn by the program'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object DrawnLine: TBevel
    Left = 16
    Top = 396
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object WaveBox: TPaintBox
    Left = 16
    Top = 404
    Width = 440
    Height = 160
    OnPaint = WavePaint
  end
  object DatesHeading: TLabel
    Left = 480
    Top = 8
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'Dates and times'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object DatesLine: TBevel
    Left = 480
    Top = 24
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object DateCaption: TLabel
    Left = 480
    Top = 36
    Width = 60
    Height = 13
    AutoSize = False
    Caption = '&Date'
    FocusControl = SampleDate
  end
  object SampleDate: TDateTimePicker
    Left = 544
    Top = 32
    Width = 186
    Height = 21
    TabOrder = 10
    OnChange = DateChange
  end
  object TimeCaption: TLabel
    Left = 480
    Top = 64
    Width = 60
    Height = 13
    AutoSize = False
    Caption = '&Time'
    FocusControl = SampleTime
  end
  object SampleTime: TDateTimePicker
    Left = 544
    Top = 60
    Width = 186
    Height = 21
    Kind = dtkTime
    TabOrder = 11
    OnChange = DateChange
  end
  object SampleMonth: TMonthCalendar
    Left = 480
    Top = 92
    Width = 250
    Height = 180
    AccessibleName = 'Days'
    TabOrder = 12
    WeekNumbers = True
    OnClick = MonthClick
  end
  object DateText: TStaticText
    Left = 480
    Top = 282
    Width = 456
    Height = 17
    AutoSize = False
    BorderStyle = sbsSunken
    Caption = ''
    TabOrder = 13
  end
end
