object MainForm: TMainForm
  Left = 0
  Top = 0
  Caption = 'Designer'
  ClientHeight = 860
  ClientWidth = 1240
  Menu = MainMenuBar
  ShowHint = True
  OnCloseQuery = FormCloseQuery
  OnShow = FormShow
  object PalettePanel: TPanel
    Left = 0
    Top = 0
    Width = 1000
    Height = 70
    Align = alTop
    BevelOuter = bvNone
    TabOrder = 0
  end
  object SidePanel: TPanel
    Left = 0
    Top = 70
    Width = 250
    Height = 522
    Align = alLeft
    BevelOuter = bvNone
    TabOrder = 1
  end
  object SideSplitter: TSplitter
    Left = 250
    Top = 70
    Width = 4
    Height = 522
    Align = alLeft
    AutoSnap = False
    MinSize = 80
  end
  object MessagesSplitter: TSplitter
    Left = 0
    Top = 588
    Width = 1000
    Height = 4
    Cursor = crVSplit
    Align = alBottom
    AutoSnap = False
  end
  object Messages: TListBox
    Left = 0
    Top = 592
    Width = 1000
    Height = 88
    AccessibleName = 'Messages'
    Align = alBottom
    ItemHeight = 13
    TabOrder = 2
  end
  object StatusBar: TStatusBar
    Left = 0
    Top = 680
    Width = 1000
    Height = 20
    Panels = <
      item
        Width = 240
      end
      item
        Width = 90
      end
      item
        Width = 700
      end>
  end
  object MainMenuBar: TMainMenu
    Left = 16
    Top = 16
    object FileMenu: TMenuItem
      Caption = '&File'
      OnClick = MenuClick
      object NewItem: TMenuItem
        Caption = '&New form'
        Hint = 'Begins an empty form'
        ShortCut = 16462
        OnClick = NewClick
      end
      object NewInheritedItem: TMenuItem
        Caption = 'New &inherited form...'
        Hint = 'Begins a form that descends from another one'
        OnClick = NewInheritedClick
      end
      object NewFrameItem: TMenuItem
        Caption = 'New fra&me'
        Hint = 'Begins an empty frame, a part of forms with a file of its own'
        OnClick = NewFrameClick
      end
      object NewModuleItem: TMenuItem
        Caption = 'New &data module'
        Hint = 'Begins an empty data module, which holds components for several forms'
        OnClick = NewModuleClick
      end
      object OpenItem: TMenuItem
        Caption = '&Open...'
        Hint = 'Opens a form file'
        ShortCut = 16463
        OnClick = OpenClick
      end
      object RecentItem: TMenuItem
        Caption = 'Open &recent'
        Hint = 'Opens a form file that was open before'
      end
      object Line1: TMenuItem
        Caption = '-'
      end
      object SaveItem: TMenuItem
        Caption = '&Save'
        Hint = 'Saves the form in its file'
        ShortCut = 16467
        OnClick = SaveClick
      end
      object SaveAsItem: TMenuItem
        Caption = 'Save &as...'
        Hint = 'Saves the form in another file'
        ShortCut = 24659
        OnClick = SaveAsClick
      end
      object WriteUnitItem: TMenuItem
        Caption = 'Write C++ &unit'
        Hint = 'Writes or updates the form class beside the form file'
        ShortCut = 16469
        OnClick = WriteUnitClick
      end
      object CloseFormItem: TMenuItem
        Caption = '&Close form'
        Hint = 'Closes the form that is worked on'
        ShortCut = 16499
        OnClick = CloseFormClick
      end
      object Line2: TMenuItem
        Caption = '-'
      end
      object ExitItem: TMenuItem
        Caption = 'E&xit'
        Hint = 'Ends the program'
        OnClick = ExitClick
      end
    end
    object EditMenu: TMenuItem
      Caption = '&Edit'
      OnClick = MenuClick
      object UndoItem: TMenuItem
        Caption = '&Undo'
        Hint = 'Takes the last change back'
        ShortCut = 16474
        OnClick = CommandClick
      end
      object RedoItem: TMenuItem
        Caption = '&Redo'
        Hint = 'Makes the change again that was taken back'
        ShortCut = 16473
        OnClick = CommandClick
      end
      object Line3: TMenuItem
        Caption = '-'
      end
      object CutItem: TMenuItem
        Caption = 'Cu&t'
        Hint = 'Moves what is selected to the clipboard'
        ShortCut = 16472
        OnClick = CommandClick
      end
      object CopyItem: TMenuItem
        Caption = '&Copy'
        Hint = 'Copies what is selected to the clipboard'
        ShortCut = 16451
        OnClick = CommandClick
      end
      object PasteItem: TMenuItem
        Caption = '&Paste'
        Hint = 'Puts the components on the clipboard on the form'
        ShortCut = 16470
        OnClick = CommandClick
      end
      object DeleteItem: TMenuItem
        Caption = '&Delete'
        Hint = 'Removes what is selected'
        OnClick = CommandClick
      end
      object SelectAllItem: TMenuItem
        Caption = 'Select &all'
        Hint = 'Selects everything in the selected container'
        ShortCut = 16449
        OnClick = CommandClick
      end
      object Line4: TMenuItem
        Caption = '-'
      end
      object FrontItem: TMenuItem
        Caption = 'Bring to &front'
        Hint = 'Puts what is selected above the others'
        OnClick = CommandClick
      end
      object BackItem: TMenuItem
        Caption = 'Send to &back'
        Hint = 'Puts what is selected below the others'
        OnClick = CommandClick
      end
      object AlignItem: TMenuItem
        Caption = 'A&lign'
        Hint = 'Lines up what is selected'
        object AlignLeftItem: TMenuItem
          Caption = '&Left sides'
          Hint = 'Lines up with the left side of the first one'
          OnClick = CommandClick
        end
        object AlignCenterItem: TMenuItem
          Caption = '&Centers'
          Hint = 'Lines up with the middle of the first one, side by side'
          OnClick = CommandClick
        end
        object AlignRightItem: TMenuItem
          Caption = '&Right sides'
          Hint = 'Lines up with the right side of the first one'
          OnClick = CommandClick
        end
        object SpaceAcrossItem: TMenuItem
          Caption = 'Space &equally'
          Hint = 'Puts them at equal distances, side by side'
          OnClick = CommandClick
        end
        object CenterAcrossItem: TMenuItem
          Caption = 'Center in &window'
          Hint = 'Puts them in the middle of what is around them'
          OnClick = CommandClick
        end
        object Line5: TMenuItem
          Caption = '-'
        end
        object AlignTopItem: TMenuItem
          Caption = '&Tops'
          Hint = 'Lines up with the upper side of the first one'
          OnClick = CommandClick
        end
        object AlignMiddleItem: TMenuItem
          Caption = '&Middles'
          Hint = 'Lines up with the middle of the first one, above each other'
          OnClick = CommandClick
        end
        object AlignBottomItem: TMenuItem
          Caption = '&Bottoms'
          Hint = 'Lines up with the lower side of the first one'
          OnClick = CommandClick
        end
        object SpaceDownItem: TMenuItem
          Caption = 'S&pace equally'
          Hint = 'Puts them at equal distances, above each other'
          OnClick = CommandClick
        end
        object CenterDownItem: TMenuItem
          Caption = 'Center in w&indow'
          Hint = 'Puts them at half the height of what is around them'
          OnClick = CommandClick
        end
      end
      object SizeItem: TMenuItem
        Caption = 'Si&ze'
        Hint = 'Gives what is selected the same size'
        object NarrowSizeItem: TMenuItem
          Caption = 'Width of the &narrowest'
          Hint = 'Makes them as wide as the narrowest'
          OnClick = CommandClick
        end
        object WideSizeItem: TMenuItem
          Caption = 'Width of the &widest'
          Hint = 'Makes them as wide as the widest'
          OnClick = CommandClick
        end
        object FirstWidthItem: TMenuItem
          Caption = 'Width of the &first'
          Hint = 'Makes them as wide as the first one selected'
          OnClick = CommandClick
        end
        object Line6: TMenuItem
          Caption = '-'
        end
        object LowSizeItem: TMenuItem
          Caption = 'Height of the &lowest'
          Hint = 'Makes them as high as the lowest'
          OnClick = CommandClick
        end
        object HighSizeItem: TMenuItem
          Caption = 'Height of the &highest'
          Hint = 'Makes them as high as the highest'
          OnClick = CommandClick
        end
        object FirstHeightItem: TMenuItem
          Caption = 'Height of the f&irst'
          Hint = 'Makes them as high as the first one selected'
          OnClick = CommandClick
        end
      end
      object TabOrderItem: TMenuItem
        Caption = 'Tab &order...'
        Hint = 'Says in which order Tab goes through the controls'
        OnClick = TabOrderClick
      end
      object CreationItem: TMenuItem
        Caption = 'Cr&eation order...'
        Hint = 'Says in which order the other components are made'
        OnClick = CreationClick
      end
      object LockItem: TMenuItem
        Caption = 'Loc&k controls'
        Hint = 'Keeps the mouse and the arrows from moving anything'
        OnClick = CommandClick
      end
    end
    object ViewMenu: TMenuItem
      Caption = '&View'
      OnClick = MenuClick
      object GridItem: TMenuItem
        Caption = '&Grid'
        Hint = 'Shows the grid'
        OnClick = CommandClick
      end
      object SnapItem: TMenuItem
        Caption = 'S&nap to grid'
        Hint = 'Moves and sizes by whole steps of the grid'
        OnClick = CommandClick
      end
      object ClearMessagesItem: TMenuItem
        Caption = '&Clear messages'
        Hint = 'Empties the list of messages'
        OnClick = ClearMessagesClick
      end
    end
    object ComponentMenu: TMenuItem
      Caption = '&Component'
      object InsertFrameItem: TMenuItem
        Caption = 'Insert &frame...'
        Hint = 'Puts the frame of a form file in the same folder on the form'
        OnClick = InsertFrameClick
      end
      object PackagesItem: TMenuItem
        Caption = '&Packages...'
        Hint = 'Shows the packages that are loaded and loads others'
        OnClick = PackagesClick
      end
    end
    object RunMenu: TMenuItem
      Caption = '&Run'
      object PreviewItem: TMenuItem
        Caption = '&Preview'
        Hint = 'Runs the form as it is, in a process of its own'
        ShortCut = 120
        OnClick = PreviewClick
      end
    end
    object ToolsMenu: TMenuItem
      Caption = '&Tools'
      object EditorsItem: TMenuItem
        Caption = '&Component editor'
        Hint = 'Opens the editor of the selected component'
        ShortCut = 122
        OnClick = CommandClick
      end
    end
    object WindowMenu: TMenuItem
      Caption = '&Window'
      OnClick = WindowMenuClick
      object NextFormItem: TMenuItem
        Caption = '&Next form'
        Hint = 'Works on the next form that is open'
        ShortCut = 16501
        OnClick = NextFormClick
      end
      object PreviousFormItem: TMenuItem
        Caption = '&Previous form'
        Hint = 'Works on the form before this one'
        ShortCut = 24693
        OnClick = PreviousFormClick
      end
      object Line7: TMenuItem
        Caption = '-'
      end
    end
    object HelpMenu: TMenuItem
      Caption = '&Help'
      object AboutItem: TMenuItem
        Caption = '&About'
        Hint = 'Says what this program is'
        OnClick = AboutClick
      end
    end
  end
  object OpenDialog: TOpenDialog
    Left = 56
    Top = 16
    DefaultExt = 'dfm'
    Filter = 'Form files (*.dfm)|*.dfm|All files (*.*)|*.*'
    Options = [ofHideReadOnly, ofPathMustExist, ofFileMustExist, ofEnableSizing]
  end
  object SaveDialog: TSaveDialog
    Left = 96
    Top = 16
    DefaultExt = 'dfm'
    Filter = 'Form files (*.dfm)|*.dfm|All files (*.*)|*.*'
    Options = [ofOverwritePrompt, ofHideReadOnly, ofPathMustExist, ofEnableSizing]
  end
  object AutosaveTimer: TTimer
    Left = 136
    Top = 16
    Interval = 60000
    OnTimer = AutosaveTimerTick
  end
  object DesignMenu: TPopupMenu
    Left = 176
    Top = 16
  end
end
