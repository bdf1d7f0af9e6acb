object MovingPage: TMovingPage
  Left = 0
  Top = 0
  Width = 952
  Height = 588
  TabOrder = 0
  object LabelsHeading: TLabel
    Left = 16
    Top = 8
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Labels that run, tell and stay beside a control'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object LabelsLine: TBevel
    Left = 16
    Top = 24
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object LinkLabel: TQELCommandLabel
    Left = 16
    Top = 34
    Width = 200
    Height = 18
    Caption = 'www.example.com'
    Transparent = True
    OnCommand = LinkCommand
  end
  object ComputerLabel: TQELInformationLabel
    Left = 16
    Top = 60
    Width = 440
    Height = 18
    Prefix = 'Computer: '
    Transparent = True
  end
  object MemoryLabel: TQELInformationLabel
    Left = 16
    Top = 84
    Width = 440
    Height = 18
    Information = iiMemoryLoad
    Prefix = 'Memory in use: '
    Interval = 2000
    Transparent = True
  end
  object VersionText: TQELVersionLabel
    Left = 16
    Top = 108
    Width = 440
    Height = 18
    Filename = 'kernel32.dll'
    Item = viFileVersion
    Prefix = 'kernel32.dll: '
    Transparent = True
  end
  object StuckEdit: TEdit
    Left = 140
    Top = 136
    Width = 140
    Height = 21
    TabOrder = 0
    Text = 'Follow me'
  end
  object StuckLabel: TQELStickyLabel
    Left = 40
    Top = 138
    Width = 96
    Height = 17
    Caption = '&Name'
    Control = StuckEdit
    Transparent = True
  end
  object FramesHeading: TLabel
    Left = 16
    Top = 172
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Pictures one after the other'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object FramesLine: TBevel
    Left = 16
    Top = 188
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object SampleAnimator: TQELAnimator
    Left = 16
    Top = 198
    Width = 64
    Height = 64
    FrameCount = 12
    Interval = 80
    Active = True
  end
  object AnimatorCheck: TCheckBox
    Left = 96
    Top = 220
    Width = 120
    Height = 17
    Caption = 'A&ctive'
    Checked = True
    TabOrder = 1
    OnClick = AnimatorClick
  end
  object SampleClip: TAnimate
    Left = 240
    Top = 206
    Width = 48
    Height = 48
    Active = True
  end
  object ClipLabel: TLabel
    Left = 304
    Top = 221
    Width = 152
    Height = 13
    Caption = 'The same as a clip'
  end
  object ScrollerHeading: TLabel
    Left = 16
    Top = 278
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'A picture that moves past; the mouse pulls it'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object ScrollerLine: TBevel
    Left = 16
    Top = 294
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object SampleScroller: TQELImageScroller
    Left = 16
    Top = 304
    Width = 440
    Height = 80
    AccessibleName = 'Hills'
    Active = True
    Interval = 20
    Step = 1
    TabOrder = 2
  end
  object MarqueeHeading: TLabel
    Left = 16
    Top = 400
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Lines that pass; they wait under the mouse'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object MarqueeLine: TBevel
    Left = 16
    Top = 416
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object SampleMarquee: TQELICQMarquee
    Left = 16
    Top = 426
    Width = 440
    Height = 60
    AccessibleName = 'News'
    Active = True
    Direction = mdUp
    Font.Height = -16
    Lines.Strings = (
      'Lines of text pass here,'
      'as fast as Speed says,'
      'in one of four directions.')
    Speed = 30
    TabOrder = 3
  end
  object SlidesHeading: TLabel
    Left = 480
    Top = 8
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'Slides: Page Down, Page Up, the wheel, a click'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object SlidesLine: TBevel
    Left = 480
    Top = 24
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object SampleSlides: TQELPresentation
    Left = 480
    Top = 34
    Width = 456
    Height = 342
    AccessibleName = 'Slides'
    Active = True
    ShowTitle = True
    Stretch = True
    TabOrder = 4
  end
  object EffectCaption: TLabel
    Left = 480
    Top = 390
    Width = 60
    Height = 13
    AutoSize = False
    Caption = '&Effect'
    FocusControl = EffectBox
  end
  object EffectBox: TComboBox
    Left = 544
    Top = 386
    Width = 200
    Height = 21
    Style = csDropDownList
    TabOrder = 5
    OnChange = EffectChange
  end
end
