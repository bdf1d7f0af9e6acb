object PickListsPage: TPickListsPage
  Left = 0
  Top = 0
  Width = 952
  Height = 588
  TabOrder = 0
  object CombosHeading: TLabel
    Left = 16
    Top = 8
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Chosen from a list that shows what it is about'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object CombosLine: TBevel
    Left = 16
    Top = 24
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object ColorsCaption: TLabel
    Left = 16
    Top = 38
    Width = 90
    Height = 13
    AutoSize = False
    Caption = 'Colour'
    FocusControl = ColorsCombo
  end
  object ColorsCombo: TQELColorCombo
    Left = 112
    Top = 34
    Width = 220
    Height = 22
    TabOrder = 0
  end
  object FontsCaption: TLabel
    Left = 16
    Top = 68
    Width = 90
    Height = 13
    AutoSize = False
    Caption = 'Typeface'
    FocusControl = FontsCombo
  end
  object FontsCombo: TQELFontCombo
    Left = 112
    Top = 64
    Width = 220
    Height = 22
    FontName = 'Tahoma'
    TabOrder = 1
  end
  object LanguagesCaption: TLabel
    Left = 16
    Top = 98
    Width = 90
    Height = 13
    AutoSize = False
    Caption = 'Language'
    FocusControl = LanguagesCombo
  end
  object LanguagesCombo: TQELLanguageCombo
    Left = 112
    Top = 94
    Width = 220
    Height = 22
    TabOrder = 2
  end
  object KeptCaption: TLabel
    Left = 16
    Top = 128
    Width = 90
    Height = 13
    AutoSize = False
    Caption = 'Completed'
    FocusControl = KeptCombo
  end
  object KeptCombo: TQELAutoCombo
    Left = 112
    Top = 124
    Width = 220
    Height = 22
    Items.Strings = (
      'Amsterdam'
      'Antwerp'
      'Athens'
      'Barcelona'
      'Berlin')
    Text = ''
    TabOrder = 3
  end
  object EditsHeading: TLabel
    Left = 16
    Top = 166
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Edits with more in them'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object EditsLine: TBevel
    Left = 16
    Top = 182
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object RealCaption: TLabel
    Left = 16
    Top = 196
    Width = 90
    Height = 13
    AutoSize = False
    Caption = 'A real number'
    FocusControl = RealEdit
  end
  object RealEdit: TQELRealSpinEdit
    Left = 112
    Top = 192
    Width = 220
    Height = 22
    Increment = 0.1
    Value = 2.5
    TabOrder = 4
  end
  object LookupCaption: TLabel
    Left = 16
    Top = 226
    Width = 90
    Height = 13
    AutoSize = False
    Caption = 'Looked up'
    FocusControl = LookupEdit
  end
  object LookupEdit: TQELLookupEdit
    Left = 112
    Top = 222
    Width = 220
    Height = 22
    MatchContains = True
    Items.Strings = (
      'Alder'
      'Ash'
      'Beech'
      'Birch'
      'Cedar'
      'Elm'
      'Fir'
      'Hazel'
      'Larch'
      'Oak'
      'Pine'
      'Willow')
    TabOrder = 5
  end
  object OfficeCaption: TLabel
    Left = 16
    Top = 256
    Width = 90
    Height = 13
    AutoSize = False
    Caption = 'With a cue'
    FocusControl = OfficeEdit
  end
  object OfficeEdit: TQELOfficeEdit
    Left = 112
    Top = 252
    Width = 220
    Height = 22
    CueText = 'Type here'
    ShowClear = True
    TabOrder = 6
  end
  object InsertCaption: TLabel
    Left = 16
    Top = 286
    Width = 90
    Height = 13
    AutoSize = False
    Caption = 'Ctrl+Space'
    FocusControl = InsertEdit
  end
  object InsertEdit: TEdit
    Left = 112
    Top = 282
    Width = 220
    Height = 22
    Text = ''
    TabOrder = 7
  end
  object BoxesHeading: TLabel
    Left = 16
    Top = 324
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Lists with marks and typefaces'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object BoxesLine: TBevel
    Left = 16
    Top = 340
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object MarkList: TQELCheckList
    Left = 16
    Top = 350
    Width = 210
    Height = 220
    AccessibleName = 'What to take'
    Items.Strings = (
      'Bread'
      'Butter'
      'Cheese'
      'Honey'
      'Milk'
      'Tea')
    States = '101010'
    TabOrder = 8
  end
  object FaceList: TQELFontBox
    Left = 240
    Top = 350
    Width = 216
    Height = 220
    AccessibleName = 'Typefaces'
    TabOrder = 9
  end
  object RowsHeading: TLabel
    Left = 480
    Top = 8
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'A list under a header: a million rows, made up when they are shown'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object RowsLine: TBevel
    Left = 480
    Top = 24
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object RowsList: TQELHeaderList
    Left = 480
    Top = 34
    Width = 456
    Height = 280
    AccessibleName = 'Numbers'
    AlternateColor = clBtnFace
    RowCount = 1000000
    Sections = <
      item
        Text = 'Number'
        Width = 130
      end
      item
        Alignment = taRightJustify
        Text = 'Square'
        Width = 150
      end
      item
        Text = 'Digits'
        Width = 140
      end>
    TabOrder = 10
    OnGetText = RowText
  end
  object HeaderHeading: TLabel
    Left = 480
    Top = 330
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'A header by itself'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object HeaderLine: TBevel
    Left = 480
    Top = 346
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object SampleHeader: TQELHeader
    Left = 480
    Top = 356
    Width = 456
    Height = 24
    AccessibleName = 'Header'
    AllowMove = True
    Sections = <
      item
        Text = 'Drag my edge'
        Width = 120
      end
      item
        Text = 'Drag me'
        Width = 120
      end
      item
        Text = 'Click me'
        Width = 120
      end>
    SortColumn = 0
    TabOrder = 11
    OnSectionClick = SectionClick
  end
  object TextMenu: TQELLookupMenu
    Edit = InsertEdit
    Items.Strings = (
      'Greetings\Formal=Dear Sir or Madam'
      'Greetings\Friendly=Hello'
      'Yours sincerely')
  end
end
