object ListsPage: TListsPage
  Left = 0
  Top = 0
  Width = 952
  Height = 588
  TabOrder = 0
  object ViewHeading: TLabel
    Left = 16
    Top = 8
    Width = 452
    Height = 13
    AutoSize = False
    Caption = 'A list view of a million rows, which are made up when they are shown'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object ViewLine: TBevel
    Left = 16
    Top = 24
    Width = 452
    Height = 2
    Shape = bsTopLine
  end
  object StyleBox: TComboBox
    Left = 16
    Top = 32
    Width = 200
    Height = 21
    AccessibleName = 'How the rows are shown'
    Style = csDropDownList
    ItemIndex = 3
    Items.Strings = (
      'Large pictures'
      'Small pictures'
      'Columns of names'
      'Rows')
    TabOrder = 0
    OnChange = StyleChange
  end
  object LinesCheck: TCheckBox
    Left = 232
    Top = 34
    Width = 110
    Height = 17
    Caption = '&Grid lines'
    TabOrder = 1
    OnClick = LinesClick
  end
  object RowsView: TListView
    Left = 16
    Top = 62
    Width = 452
    Height = 510
    AccessibleName = 'Rows'
    Columns = <
      item
        Caption = 'Number'
        Width = 110
      end
      item
        Alignment = taRightJustify
        Caption = 'Square'
        Width = 130
      end
      item
        Caption = 'Sum of its digits'
        Width = 120
      end>
    OwnerData = True
    ReadOnly = True
    RowSelect = True
    TabOrder = 2
    ViewStyle = vsReport
    OnData = RowsData
  end
  object GridHeading: TLabel
    Left = 484
    Top = 8
    Width = 452
    Height = 13
    AutoSize = False
    Caption = 'A grid of texts: edited, sorted, copied and pasted'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object GridLine: TBevel
    Left = 484
    Top = 24
    Width = 452
    Height = 2
    Shape = bsTopLine
  end
  object SampleGrid: TStringGrid
    Left = 484
    Top = 32
    Width = 452
    Height = 252
    AccessibleName = 'Stock'
    ColCount = 5
    DefaultColWidth = 84
    DefaultRowHeight = 20
    FixedCols = 1
    Options = [goFixedVertLine, goFixedHorzLine, goVertLine, goHorzLine, goRangeSelect, goColSizing, goEditing]
    RowCount = 12
    TabOrder = 3
    Columns = <
      item
        Title = 'Article'
      end
      item
        Alignment = taRightJustify
        Title = 'Pieces'
      end
      item
        PickList.Strings = (
          'Hall 1'
          'Hall 2'
          'Yard')
        Title = 'Place'
      end
      item
        ButtonStyle = cbsCheckBox
        Title = 'Ordered'
      end>
    OnFixedCellClick = GridSort
  end
  object DrawnHeading: TLabel
    Left = 484
    Top = 300
    Width = 452
    Height = 13
    AutoSize = False
    Caption = 'A grid of a million rows whose cells the program draws'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object DrawnLine: TBevel
    Left = 484
    Top = 316
    Width = 452
    Height = 2
    Shape = bsTopLine
  end
  object DrawnGrid: TDrawGrid
    Left = 484
    Top = 324
    Width = 452
    Height = 248
    AccessibleName = 'Colours'
    ColCount = 17
    DefaultColWidth = 24
    DefaultRowHeight = 20
    FixedCols = 1
    FixedRows = 0
    RowCount = 1000000
    TabOrder = 4
    OnDrawCell = CellDraw
  end
end
