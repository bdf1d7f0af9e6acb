object NotesForm: TNotesForm
  Left = 140
  Top = 100
  Constraints.MinHeight = 200
  Constraints.MinWidth = 360
  Caption = 'Notes'
  ClientHeight = 420
  ClientWidth = 640
  Menu = MainMenu
  OnClose = FormClose
  OnCloseQuery = FormCloseQuery
  OnDropFiles = FilesDropped
  OnResize = FormResize
  OnShow = FormShow
  object Editor: TMemo
    Left = 0
    Top = 0
    Width = 640
    Height = 400
    Align = alClient
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -13
    Font.Name = 'Tahoma'
    Font.Style = []
    HideSelection = False
    ParentFont = False
    ScrollBars = ssVertical
    TabOrder = 0
    WantTabs = True
    OnChange = EditorChange
  end
  object StatusBar: TStatusBar
    Left = 0
    Top = 400
    Width = 640
    Height = 20
    Panels = <
      item
        Width = 300
      end
      item
        Width = 130
      end
      item
        Width = 70
      end
      item
        Width = 60
      end
      item
        Width = 70
      end>
  end
  object MainMenu: TMainMenu
    Left = 24
    Top = 24
    object FileMenu: TMenuItem
      Caption = '&File'
      object NewItem: TMenuItem
        Caption = '&New'
        Hint = 'Begins an empty text'
        ShortCut = 16462
        OnClick = NewClick
      end
      object OpenItem: TMenuItem
        Caption = '&Open...'
        Hint = 'Opens a text file'
        ShortCut = 16463
        OnClick = OpenClick
      end
      object SaveItem: TMenuItem
        Caption = '&Save'
        Hint = 'Saves the text in its file'
        ShortCut = 16467
        OnClick = SaveClick
      end
      object SaveAsItem: TMenuItem
        Caption = 'Save &as...'
        Hint = 'Saves the text in another file'
        ShortCut = 24659
        OnClick = SaveAsClick
      end
      object PrintEnd: TMenuItem
        Caption = '-'
      end
      object PageSetupItem: TMenuItem
        Caption = 'Pa&ge set-up...'
        Hint = 'Chooses the sheet and its margins'
        OnClick = PageSetupClick
      end
      object PreviewItem: TMenuItem
        Caption = 'Print pre&view...'
        Hint = 'Shows the pages as they will be printed'
        OnClick = PreviewClick
      end
      object PrintItem: TMenuItem
        Caption = '&Print...'
        Hint = 'Prints the text'
        ShortCut = 16464
        OnClick = PrintClick
      end
      object RecentEnd: TMenuItem
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
      object UndoItem: TMenuItem
        Action = UndoAction
      end
      object UndoEnd: TMenuItem
        Caption = '-'
      end
      object CutItem: TMenuItem
        Action = CutAction
      end
      object CopyItem: TMenuItem
        Action = CopyAction
      end
      object PasteItem: TMenuItem
        Action = PasteAction
      end
      object SelectAllItem: TMenuItem
        Action = SelectAllAction
      end
      object ClipboardEnd: TMenuItem
        Caption = '-'
      end
      object FindItem: TMenuItem
        Caption = '&Find...'
        Hint = 'Looks for a text'
        ShortCut = 16454
        OnClick = FindClick
      end
      object FindNextItem: TMenuItem
        Caption = 'Find &next'
        Hint = 'Looks for the same text again'
        ShortCut = 114
        OnClick = FindNextClick
      end
    end
    object ViewMenu: TMenuItem
      Caption = '&View'
      object WordWrapItem: TMenuItem
        Caption = '&Word wrap'
        Hint = 'Long lines go on in the next row'
        OnClick = WordWrapClick
      end
      object FontItem: TMenuItem
        Caption = '&Font...'
        Hint = 'Chooses the font of the text'
        OnClick = FontClick
      end
      object StatusBarItem: TMenuItem
        Caption = '&Status bar'
        Checked = True
        Hint = 'Shows this line'
        OnClick = StatusBarClick
      end
      object ViewEnd: TMenuItem
        Caption = '-'
      end
      object OptionsItem: TMenuItem
        Caption = '&Options...'
        Hint = 'Changes how the program behaves'
        OnClick = OptionsClick
      end
    end
    object HelpMenu: TMenuItem
      Caption = '&Help'
      object AboutItem: TMenuItem
        Caption = '&About Notes'
        Hint = 'Tells what this program is'
        OnClick = AboutClick
      end
    end
  end
  object TrayMenu: TPopupMenu
    Left = 64
    Top = 24
    object TrayShowItem: TMenuItem
      Caption = '&Show Notes'
      Default = True
      OnClick = TrayShowClick
    end
    object TrayEnd: TMenuItem
      Caption = '-'
    end
    object TrayExitItem: TMenuItem
      Caption = 'E&xit'
      OnClick = ExitClick
    end
  end
  object EditActions: TActionList
    Left = 264
    Top = 24
    object UndoAction: TEditUndo
      Category = 'Edit'
      Caption = '&Undo'
      Hint = 'Takes the last change back'
      ShortCut = 16474
    end
    object CutAction: TEditCut
      Category = 'Edit'
      Caption = 'Cu&t'
      Hint = 'Moves what is selected to the clipboard'
      ShortCut = 16472
    end
    object CopyAction: TEditCopy
      Category = 'Edit'
      Caption = '&Copy'
      Hint = 'Copies what is selected to the clipboard'
      ShortCut = 16451
    end
    object PasteAction: TEditPaste
      Category = 'Edit'
      Caption = '&Paste'
      Hint = 'Puts the clipboard in the place of what is selected'
      ShortCut = 16470
    end
    object SelectAllAction: TEditSelectAll
      Category = 'Edit'
      Caption = 'Select &all'
      Hint = 'Selects the whole text'
      ShortCut = 16449
    end
  end
  object OpenDialog: TOpenDialog
    DefaultExt = 'txt'
    Filter = 'Text files|*.txt;*.md;*.log;*.ini|All files|*.*'
    Options = [ofHideReadOnly, ofNoChangeDir, ofPathMustExist, ofFileMustExist, ofEnableSizing]
    Left = 104
    Top = 24
  end
  object SaveDialog: TSaveDialog
    DefaultExt = 'txt'
    Filter = 'Text files|*.txt;*.md;*.log;*.ini|All files|*.*'
    Options = [ofOverwritePrompt, ofHideReadOnly, ofNoChangeDir, ofPathMustExist, ofEnableSizing]
    Left = 144
    Top = 24
  end
  object FontDialog: TFontDialog
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -13
    Font.Name = 'Tahoma'
    Font.Style = []
    Options = [fdForceFontExist]
    Left = 184
    Top = 24
  end
  object PageSetupDialog: TPageSetupDialog
    Left = 264
    Top = 72
  end
  object PrintDialog: TPrintDialog
    Left = 304
    Top = 72
  end
  object RecoveryTimer: TTimer
    OnTimer = RecoveryTimerTick
    Left = 224
    Top = 24
  end
  object Guard: TQELOnlyOne
    Instances = 1
    OnExceeded = GuardExceeded
    Left = 24
    Top = 72
  end
  object Settings: TQELStoreData
    DataStore.Datatype = sIniFile
    DataStore.Inifile.Filename = 'notes.ini'
    DataStore.Inifile.Section = 'Options'
    Left = 64
    Top = 72
  end
  object WindowSaver: TQELFormSaver
    FormStore.Datatype = sIniFile
    FormStore.Inifile.Filename = 'notes.ini'
    FormStore.Inifile.Section = 'Windows'
    StoreControls = True
    KeepOnScreen = True
    QualifyNames = True
    OnRestore = WindowsRestored
    Left = 104
    Top = 72
  end
  object RecentFiles: TQELMRUMenu
    OnItemClick = RecentClick
    AttachToMenu = RecentEnd
    MRUStore.Datatype = sIniFile
    MRUStore.Inifile.Filename = 'notes.ini'
    MRUStore.Inifile.Section = 'Recent files'
    Numbering = True
    Left = 144
    Top = 72
  end
  object Tray: TQELSystemTray
    Hint = 'Notes'
    PopupMenu = TrayMenu
    NormalIcon = True
    OnClick = TrayShowClick
    Left = 184
    Top = 72
  end
end
