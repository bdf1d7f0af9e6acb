object EditingPage: TEditingPage
  Left = 0
  Top = 0
  Width = 952
  Height = 588
  TabOrder = 0
  object SizeMenu: TPopupMenu
    Left = 880
    Top = 540
    object Size8: TMenuItem
      Tag = 8
      Caption = '8 points'
      OnClick = SizeClick
    end
    object Size12: TMenuItem
      Tag = 12
      Caption = '12 points'
      OnClick = SizeClick
    end
    object Size18: TMenuItem
      Tag = 18
      Caption = '18 points'
      OnClick = SizeClick
    end
    object Size28: TMenuItem
      Tag = 28
      Caption = '28 points'
      OnClick = SizeClick
    end
  end
  object TextHeading: TLabel
    Left = 16
    Top = 8
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'A tool bar, and a text with attributes'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object TextLine: TBevel
    Left = 16
    Top = 24
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object TextPanel: TPanel
    Left = 16
    Top = 34
    Width = 440
    Height = 276
    BevelOuter = bvNone
    Caption = ''
    TabOrder = 0
    object TextBar: TToolBar
      Left = 0
      Top = 0
      Width = 440
      Height = 26
      Align = alTop
      ButtonHeight = 24
      Flat = True
      ShowCaptions = True
      ShowHint = True
      TabOrder = 0
      object BoldButton: TToolButton
        Left = 0
        Top = 0
        Width = 30
        Height = 24
        Caption = 'B'
        Hint = 'Bold'
        Style = tbsCheck
        OnClick = StyleClick
      end
      object ItalicButton: TToolButton
        Left = 30
        Top = 0
        Width = 30
        Height = 24
        Caption = 'I'
        Hint = 'Italic'
        Style = tbsCheck
        OnClick = StyleClick
      end
      object UnderlineButton: TToolButton
        Left = 60
        Top = 0
        Width = 30
        Height = 24
        Caption = 'U'
        Hint = 'Underlined'
        Style = tbsCheck
        OnClick = StyleClick
      end
      object FirstGap: TToolButton
        Left = 90
        Top = 0
        Width = 8
        Height = 24
        Style = tbsSeparator
      end
      object LeftButton: TToolButton
        Left = 98
        Top = 0
        Width = 46
        Height = 24
        Caption = 'Left'
        Grouped = True
        Style = tbsCheck
        Down = True
        OnClick = ParagraphClick
      end
      object CenterButton: TToolButton
        Left = 144
        Top = 0
        Width = 52
        Height = 24
        Caption = 'Centre'
        Grouped = True
        Style = tbsCheck
        OnClick = ParagraphClick
      end
      object RightButton: TToolButton
        Left = 196
        Top = 0
        Width = 46
        Height = 24
        Caption = 'Right'
        Grouped = True
        Style = tbsCheck
        OnClick = ParagraphClick
      end
      object SecondGap: TToolButton
        Left = 242
        Top = 0
        Width = 8
        Height = 24
        Style = tbsSeparator
      end
      object BulletsButton: TToolButton
        Left = 250
        Top = 0
        Width = 42
        Height = 24
        Caption = 'List'
        Style = tbsCheck
        OnClick = ParagraphClick
      end
      object SizeButton: TToolButton
        Left = 292
        Top = 0
        Width = 58
        Height = 24
        Caption = 'Size'
        DropdownMenu = SizeMenu
        Style = tbsDropDown
      end
    end
    object RichText: TRichEdit
      Left = 0
      Top = 26
      Width = 440
      Height = 250
      AccessibleName = 'Text with attributes'
      Align = alClient
      ScrollBars = ssVertical
      TabOrder = 1
      OnSelectionChange = SelectionChange
    end
  end
  object ColoursHeading: TLabel
    Left = 16
    Top = 326
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Colours, in both faces'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object ColoursLine: TBevel
    Left = 16
    Top = 342
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object ColorCaption: TLabel
    Left = 16
    Top = 356
    Width = 90
    Height = 13
    AutoSize = False
    Caption = '&Text'
    FocusControl = TextColor
  end
  object TextColor: TColorBox
    Left = 110
    Top = 352
    Width = 140
    Height = 22
    Style = [cbStandardColors, cbExtendedColors, cbSystemColors, cbCustomColor, cbPrettyNames]
    TabOrder = 1
    OnChange = ColorChange
  end
  object ColorList: TColorListBox
    Left = 266
    Top = 352
    Width = 190
    Height = 200
    AccessibleName = 'Colours'
    Style = [cbStandardColors, cbExtendedColors, cbPrettyNames]
    TabOrder = 2
    OnClick = ColorListClick
  end
  object MasksHeading: TLabel
    Left = 480
    Top = 8
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'Masks, and edits with a label of their own'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object MasksLine: TBevel
    Left = 480
    Top = 24
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object DateMaskCaption: TLabel
    Left = 480
    Top = 36
    Width = 120
    Height = 13
    AutoSize = False
    Caption = 'D&ate'
    FocusControl = DateMask
  end
  object DateMask: TMaskEdit
    Left = 610
    Top = 32
    Width = 120
    Height = 21
    EditMask = '!99/99/0000;1;_'
    TabOrder = 3
  end
  object PhoneMaskCaption: TLabel
    Left = 480
    Top = 64
    Width = 120
    Height = 13
    AutoSize = False
    Caption = '&Phone'
    FocusControl = PhoneMask
  end
  object PhoneMask: TMaskEdit
    Left = 610
    Top = 60
    Width = 120
    Height = 21
    EditMask = '!(999) 000-0000;1;_'
    TabOrder = 4
  end
  object CodeMaskCaption: TLabel
    Left = 480
    Top = 92
    Width = 120
    Height = 13
    AutoSize = False
    Caption = '&Letters in capitals'
    FocusControl = CodeMask
  end
  object CodeMask: TMaskEdit
    Left = 610
    Top = 88
    Width = 120
    Height = 21
    EditMask = '>LLL-000;1;_'
    TabOrder = 5
  end
  object TownEdit: TLabeledEdit
    Left = 760
    Top = 52
    Width = 176
    Height = 21
    EditLabel.Width = 26
    EditLabel.Height = 13
    EditLabel.Caption = 'To&wn'
    TabOrder = 6
    Text = 'Vienna'
  end
  object BandsHeading: TLabel
    Left = 480
    Top = 128
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'Bands that are moved and sized'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object BandsLine: TBevel
    Left = 480
    Top = 144
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object BandPanel: TPanel
    Left = 480
    Top = 152
    Width = 456
    Height = 40
    BevelOuter = bvNone
    Caption = ''
    TabOrder = 7
    object SampleBands: TCoolBar
      Left = 0
      Top = 0
      Width = 456
      Height = 36
      Align = alTop
      TabOrder = 0
      Bands = <
        item
          Control = BandButtons
          MinHeight = 26
          Width = 220
        end
        item
          Break = False
          Control = BandEdit
          MinHeight = 21
          Width = 230
        end>
      object BandButtons: TToolBar
        Left = 11
        Top = 2
        Width = 180
        Height = 26
        Align = alNone
        ButtonHeight = 24
        ShowCaptions = True
        TabOrder = 0
        object BandOne: TToolButton
          Left = 0
          Top = 0
          Width = 44
          Height = 24
          Caption = 'One'
        end
        object BandTwo: TToolButton
          Left = 44
          Top = 0
          Width = 44
          Height = 24
          Caption = 'Two'
        end
        object BandThree: TToolButton
          Left = 88
          Top = 0
          Width = 44
          Height = 24
          Caption = 'Three'
        end
      end
      object BandEdit: TEdit
        Left = 220
        Top = 4
        Width = 160
        Height = 21
        AccessibleName = 'In a band'
        TabOrder = 1
        Text = 'In a band'
      end
    end
  end
  object SectionsHeading: TLabel
    Left = 480
    Top = 208
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'Sections, to size and to move'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object SectionsLine: TBevel
    Left = 480
    Top = 224
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object SectionPanel: TPanel
    Left = 480
    Top = 232
    Width = 456
    Height = 24
    BevelOuter = bvNone
    Caption = ''
    TabOrder = 8
    object SampleSections: THeaderControl
      Left = 0
      Top = 0
      Width = 456
      Height = 24
      DragReorder = True
      HotTrack = True
      Sections = <
        item
          SortMark = smUp
          Text = 'Name'
          Width = 160
        end
        item
          Alignment = taRightJustify
          Text = 'Size'
          Width = 90
        end
        item
          AutoSize = True
          Text = 'Kind'
          Width = 200
        end>
    end
  end
  object TabsHeading: TLabel
    Left = 480
    Top = 272
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'Tabs over one area'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object TabsLine: TBevel
    Left = 480
    Top = 288
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object SampleTabs: TTabControl
    Left = 480
    Top = 298
    Width = 456
    Height = 120
    AccessibleName = 'Tabs'
    TabOrder = 9
    Tabs.Strings = (
      '&First'
      '&Second'
      '&Third')
    TabIndex = 0
    OnChange = TabChange
    object TabText: TLabel
      Left = 16
      Top = 48
      Width = 420
      Height = 13
      AutoSize = False
      Caption = ''
      Transparent = True
    end
  end
end
