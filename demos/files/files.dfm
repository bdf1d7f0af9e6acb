object FilesForm: TFilesForm
  Left = 80
  Top = 60
  Constraints.MinHeight = 360
  Constraints.MinWidth = 640
  Caption = 'Files'
  ClientHeight = 600
  ClientWidth = 1000
  Menu = MainMenu
  OnResize = FormResize
  OnShow = FormShow
  object Actions: TActionList
    Left = 24
    Top = 60
    object OpenAction: TAction
      Caption = '&Open'
      Hint = 'Opens the file, or goes into the folder'
      OnExecute = OpenExecute
    end
    object ShowAction: TAction
      Caption = '&View'
      Hint = 'Shows the file'
      ShortCut = 114
      OnExecute = ShowExecute
    end
    object CopyAction: TAction
      Caption = '&Copy...'
      Hint = 'Copies what is selected into the other pane'
      ShortCut = 116
      OnExecute = CopyExecute
    end
    object MoveAction: TAction
      Caption = '&Move...'
      Hint = 'Moves what is selected into the other pane'
      ShortCut = 117
      OnExecute = MoveExecute
    end
    object NewFolderAction: TAction
      Caption = '&New folder'
      Hint = 'Makes a folder'
      ShortCut = 118
      OnExecute = NewFolderExecute
    end
    object DeleteAction: TAction
      Caption = '&Delete'
      Hint = 'Puts what is selected into the recycle bin'
      ShortCut = 119
      OnExecute = DeleteExecute
    end
    object RenameAction: TAction
      Caption = '&Rename'
      Hint = 'Gives it another name'
      OnExecute = RenameExecute
    end
    object PropertiesAction: TAction
      Caption = '&Properties'
      Hint = 'Shows the properties of the file'
      ShortCut = 32781
      OnExecute = PropertiesExecute
    end
    object ExitAction: TAction
      Caption = 'E&xit'
      Hint = 'Ends the program'
      ShortCut = 32883
      OnExecute = ExitExecute
    end
    object SearchAction: TAction
      Caption = '&Search...'
      Hint = 'Searches for files'
      ShortCut = 16454
      OnExecute = SearchExecute
    end
    object ReplaceAction: TAction
      Caption = 'Re&place...'
      Hint = 'Replaces texts in the selected files'
      ShortCut = 16456
      OnExecute = ReplaceExecute
    end
    object SameFolderAction: TAction
      Caption = '&Same folder on the other side'
      Hint = 'Shows this folder on the other side, too'
      ShortCut = 16453
      OnExecute = SameFolderExecute
    end
    object SwapAction: TAction
      Caption = 'S&wap the sides'
      Hint = 'Swaps the folders of both sides'
      ShortCut = 16469
      OnExecute = SwapExecute
    end
    object RefreshAction: TAction
      Caption = '&Read anew'
      Hint = 'Reads both folders anew'
      ShortCut = 16466
      OnExecute = RefreshExecute
    end
    object HiddenAction: TAction
      Caption = '&Hidden files'
      Hint = 'Shows hidden files, too'
      OnExecute = HiddenExecute
    end
  end
  object MainMenu: TMainMenu
    Left = 64
    Top = 60
    object FileMenu: TMenuItem
      Caption = '&File'
      object OpenItem: TMenuItem
        Action = OpenAction
      end
      object ShowItem: TMenuItem
        Action = ShowAction
      end
      object CopyItem: TMenuItem
        Action = CopyAction
      end
      object MoveItem: TMenuItem
        Action = MoveAction
      end
      object NewFolderItem: TMenuItem
        Action = NewFolderAction
      end
      object DeleteItem: TMenuItem
        Action = DeleteAction
      end
      object RenameItem: TMenuItem
        Action = RenameAction
      end
      object PropertiesItem: TMenuItem
        Action = PropertiesAction
      end
      object FileLine: TMenuItem
        Caption = '-'
      end
      object ExitItem: TMenuItem
        Action = ExitAction
      end
    end
    object CommandsMenu: TMenuItem
      Caption = '&Commands'
      object SearchItem: TMenuItem
        Action = SearchAction
      end
      object ReplaceItem: TMenuItem
        Action = ReplaceAction
      end
      object SameFolderItem: TMenuItem
        Action = SameFolderAction
      end
      object SwapItem: TMenuItem
        Action = SwapAction
      end
      object RefreshItem: TMenuItem
        Action = RefreshAction
      end
      object HiddenItem: TMenuItem
        Action = HiddenAction
      end
    end
  end
  object Work: TQELFileOperator
    Left = 104
    Top = 60
    OnError = WorkError
  end
  object Start: TQELFileExecute
    Left = 144
    Top = 60
  end
  object Command: TQELFileExecute
    CaptureOutput = True
    Filename = 'cmd.exe'
    ShowMode = smHidden
    Left = 184
    Top = 60
    OnFinished = CommandFinished
    OnOutput = CommandOutput
  end
  object Sheet: TQELFileProperties
    Left = 224
    Top = 60
  end
  object Log: TQELLogFile
    LogExceptions = True
    MaxFiles = 3
    MaxSize = 256
    Left = 264
    Top = 60
  end
  object KeyPanel: TPanel
    Left = 0
    Top = 566
    Width = 1000
    Height = 34
    Align = alBottom
    BevelOuter = bvNone
    TabOrder = 3
    object ShowButton: TButton
      Left = 4
      Top = 4
      Width = 114
      Height = 26
      Caption = 'F3 View'
      TabOrder = 0
      TabStop = False
      OnClick = ShowExecute
    end
    object CopyButton: TButton
      Left = 122
      Top = 4
      Width = 114
      Height = 26
      Caption = 'F5 Copy'
      TabOrder = 1
      TabStop = False
      OnClick = CopyExecute
    end
    object MoveButton: TButton
      Left = 240
      Top = 4
      Width = 114
      Height = 26
      Caption = 'F6 Move'
      TabOrder = 2
      TabStop = False
      OnClick = MoveExecute
    end
    object NewFolderButton: TButton
      Left = 358
      Top = 4
      Width = 114
      Height = 26
      Caption = 'F7 New folder'
      TabOrder = 3
      TabStop = False
      OnClick = NewFolderExecute
    end
    object DeleteButton: TButton
      Left = 476
      Top = 4
      Width = 114
      Height = 26
      Caption = 'F8 Delete'
      TabOrder = 4
      TabStop = False
      OnClick = DeleteExecute
    end
    object SearchButton: TButton
      Left = 594
      Top = 4
      Width = 114
      Height = 26
      Caption = 'Ctrl+F Search'
      TabOrder = 5
      TabStop = False
      OnClick = SearchExecute
    end
  end
  object CommandPanel: TPanel
    Left = 0
    Top = 536
    Width = 1000
    Height = 30
    Align = alBottom
    BevelOuter = bvNone
    TabOrder = 2
    object CommandLabel: TLabel
      Left = 6
      Top = 8
      Width = 52
      Height = 13
      Caption = 'Comman&d:'
      FocusControl = CommandEdit
    end
    object CommandEdit: TEdit
      Left = 68
      Top = 4
      Width = 600
      Height = 21
      TabOrder = 0
      OnKeyDown = CommandKeyDown
    end
  end
  object OutputMemo: TMemo
    Left = 0
    Top = 416
    Width = 1000
    Height = 120
    AccessibleName = 'What the command has written'
    Align = alBottom
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -12
    Font.Name = 'Courier New'
    Font.Style = []
    ParentFont = False
    ReadOnly = True
    ScrollBars = ssBoth
    TabOrder = 4
    Visible = False
    WordWrap = False
  end
  inline LeftPane: TPane
    Left = 0
    Top = 0
    Width = 498
    Height = 536
    Align = alLeft
    TabOrder = 0
  end
  object Middle: TSplitter
    Left = 498
    Top = 0
    Width = 4
    Height = 536
    Align = alLeft
    MinSize = 200
    OnMoved = MiddleMoved
  end
  inline RightPane: TPane
    Left = 502
    Top = 0
    Width = 498
    Height = 536
    Align = alClient
    TabOrder = 1
  end
end
