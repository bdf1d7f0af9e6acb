object ChoicesPage: TChoicesPage
  Left = 0
  Top = 0
  Width = 952
  Height = 588
  TabOrder = 0
  object ChecksHeading: TLabel
    Left = 16
    Top = 8
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Check boxes and radio buttons: Tab, arrows, space, Alt and the letter'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object ChecksLine: TBevel
    Left = 16
    Top = 24
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object PlainCheck: TQELCheckbox
    Left = 16
    Top = 34
    Width = 104
    Height = 22
    Caption = '&Fresh'
    Checked = True
    TabOrder = 0
  end
  object GrayCheck: TQELCheckbox
    Left = 126
    Top = 34
    Width = 104
    Height = 22
    Caption = '&Perhaps'
    AllowGrayed = True
    State = cbGrayed
    TabOrder = 1
  end
  object LeftCheck: TQELCheckbox
    Left = 236
    Top = 34
    Width = 104
    Height = 22
    Caption = 'Box &behind'
    Alignment = taLeftJustify
    TabOrder = 2
  end
  object OffCheck: TQELCheckbox
    Left = 346
    Top = 34
    Width = 104
    Height = 22
    Caption = 'Not now'
    Enabled = False
    TabOrder = 3
  end
  object Radio1: TQELRadiobutton
    Left = 16
    Top = 62
    Width = 104
    Height = 22
    Caption = '&One'
    Checked = True
    TabOrder = 4
  end
  object Radio2: TQELRadiobutton
    Left = 126
    Top = 62
    Width = 104
    Height = 22
    Caption = '&Two'
    TabOrder = 5
  end
  object Radio3: TQELRadiobutton
    Left = 236
    Top = 62
    Width = 104
    Height = 22
    Caption = 'T&hree'
    TabOrder = 6
  end
  object ToolsHeading: TLabel
    Left = 16
    Top = 96
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Buttons of tool bars, with and without a window'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object ToolsLine: TBevel
    Left = 16
    Top = 112
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object FlatFirst: TQELIEButton
    Left = 16
    Top = 122
    Width = 90
    Height = 28
    Caption = 'Left'
    GroupIndex = 1
    Down = True
  end
  object FlatSecond: TQELIEButton
    Left = 108
    Top = 122
    Width = 90
    Height = 28
    Caption = 'Middle'
    GroupIndex = 1
  end
  object FlatThird: TQELIEButton
    Left = 200
    Top = 122
    Width = 90
    Height = 28
    Caption = 'Right'
    GroupIndex = 1
  end
  object FlatMenu: TQELIEButton
    Left = 292
    Top = 122
    Width = 90
    Height = 28
    Caption = 'Menu'
    DropDownMenu = PageMenu
  end
  object OfficePlain: TQELOfficeButton
    Left = 16
    Top = 156
    Width = 90
    Height = 28
    Caption = '&Save'
    TabOrder = 7
    OnClick = ButtonClick
  end
  object OfficeSplit: TQELOfficeButton
    Left = 108
    Top = 156
    Width = 110
    Height = 28
    Caption = 'Save &as'
    DropDownMenu = PageMenu
    SplitDropDown = True
    TabOrder = 8
    OnClick = ButtonClick
  end
  object OfficeDown: TQELOfficeButton
    Left = 222
    Top = 156
    Width = 90
    Height = 28
    AllowAllUp = True
    Caption = '&Bold'
    GroupIndex = 2
    Down = True
    TabOrder = 9
    OnClick = ButtonClick
  end
  object OfficeOff: TQELOfficeButton
    Left = 316
    Top = 156
    Width = 90
    Height = 28
    Caption = 'Not now'
    Enabled = False
    TabOrder = 10
  end
  object ShapesHeading: TLabel
    Left = 16
    Top = 200
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Arrows that repeat, round buttons'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object ShapesLine: TBevel
    Left = 16
    Top = 216
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object ArrowUp: TQELArrowButton
    Left = 16
    Top = 228
    Width = 30
    Height = 26
    AccessibleName = 'Up'
    Direction = adUp
    TabOrder = 11
    OnClick = ArrowClick
  end
  object ArrowDown: TQELArrowButton
    Left = 52
    Top = 228
    Width = 30
    Height = 26
    AccessibleName = 'Down'
    Direction = adDown
    TabOrder = 12
    OnClick = ArrowClick
  end
  object ArrowLeft: TQELArrowButton
    Left = 88
    Top = 228
    Width = 30
    Height = 26
    AccessibleName = 'Left'
    Direction = adLeft
    TabOrder = 13
    OnClick = ArrowClick
  end
  object ArrowRight: TQELArrowButton
    Left = 124
    Top = 228
    Width = 30
    Height = 26
    AccessibleName = 'Right'
    Direction = adRight
    TabOrder = 14
    OnClick = ArrowClick
  end
  object ArrowCount: TLabel
    Left = 166
    Top = 234
    Width = 60
    Height = 13
    AutoSize = False
    Caption = '0, 0'
  end
  object RoundPlain: TQELRoundButton
    Left = 240
    Top = 222
    Width = 64
    Height = 64
    Caption = 'G&o'
    TabOrder = 15
    OnClick = ButtonClick
  end
  object RoundInset: TQELRoundButton
    Left = 316
    Top = 222
    Width = 100
    Height = 64
    ButtonType = btInset
    Caption = '&Inset'
    TabOrder = 16
    OnClick = ButtonClick
  end
  object LastHeading: TLabel
    Left = 16
    Top = 300
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'What was clicked last'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object LastLine: TBevel
    Left = 16
    Top = 316
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object LastText: TLabel
    Left = 16
    Top = 324
    Width = 440
    Height = 13
    AutoSize = False
    Caption = ''
  end
  object PanelsHeading: TLabel
    Left = 480
    Top = 8
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'A panel that is moved, sized and rolled up; a divider; a ground'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object PanelsLine: TBevel
    Left = 480
    Top = 24
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object SamplePanel: TQELPanel
    Left = 480
    Top = 34
    Width = 220
    Height = 150
    Alignment = taLeftJustify
    Caption = '  &Drag me, size me, click my strip'
    Collapsible = True
    ExpandedHeight = 150
    Frame.FrameStyle = frameRaised
    Layout = tlTop
    Movable = True
    Sizeable = True
    TabOrder = 17
  end
  object DividedPanel: TPanel
    Left = 480
    Top = 200
    Width = 456
    Height = 180
    BevelOuter = bvNone
    Caption = ''
    TabOrder = 18
    object LeftMemo: TMemo
      Left = 0
      Top = 0
      Width = 200
      Height = 200
      AccessibleName = 'Left area'
      Align = alLeft
      Lines.Strings = (
        'Left: drag the divider, double-click it.')
      TabOrder = 0
    end
    object SampleDivider: TQELFormDivider
      Left = 200
      Top = 0
      Width = 7
      Height = 200
      Collapsible = True
      Frame.FrameStyle = frameRaised
    end
    object RightMemo: TMemo
      Left = 207
      Top = 0
      Width = 249
      Height = 200
      AccessibleName = 'Right area'
      Align = alClient
      Lines.Strings = (
        'Right')
      TabOrder = 1
    end
  end
  object GroundPanel: TPanel
    Left = 480
    Top = 396
    Width = 456
    Height = 120
    BevelOuter = bvLowered
    Caption = ''
    TabOrder = 19
    object GroundFill: TQELFillBackground
      Left = 0
      Top = 0
      Width = 456
      Height = 120
      Background = PageGround
    end
    object GroundText: TLabel
      Left = 16
      Top = 16
      Width = 300
      Height = 13
      Caption = 'A label of the class library on a background'
      Transparent = True
    end
    object GroundCheck: TQELCheckbox
      Left = 16
      Top = 44
      Width = 240
      Height = 22
      Background = PageGround
      Caption = 'A check box on the &same one'
      TabOrder = 0
    end
  end
  object PageGround: TQELBackground
    Gradient.FillStyle = Horizontal
    Gradient.BeginColor = clWhite
    Gradient.EndColor = clSilver
  end
  object PageMenu: TPopupMenu
    object MenuCopy: TMenuItem
      Caption = 'A copy'
      OnClick = ButtonClick
    end
    object MenuText: TMenuItem
      Caption = 'As text'
      OnClick = ButtonClick
    end
    object MenuPicture: TMenuItem
      Caption = 'As a picture'
      OnClick = ButtonClick
    end
  end
end
