object FilesPage: TFilesPage
  Left = 0
  Top = 0
  Width = 952
  Height = 588
  TabOrder = 0
  object Dropped: TQELDroppedFiles
    Left = 768
    Top = 540
    Control = Told
    OnDrop = DroppedDrop
  end
  object ListsHeading: TLabel
    Left = 16
    Top = 8
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'A drive, its folders, the files of the one that is open'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object ListsLine: TBevel
    Left = 16
    Top = 24
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object Drives: TQELDriveCombo
    Left = 16
    Top = 34
    Width = 200
    Height = 22
    AccessibleName = 'Drives'
    FolderList = Folders
    TabOrder = 0
  end
  object Folders: TQELFolderListbox
    Left = 16
    Top = 64
    Width = 440
    Height = 190
    AccessibleName = 'Folders'
    FileList = FileBox
    OnFolderChange = FoldersFolderChange
    TabOrder = 1
  end
  object FileBox: TQELFileCombo
    Left = 16
    Top = 262
    Width = 440
    Height = 22
    AccessibleName = 'Files'
    TabOrder = 2
    OnChange = FileBoxChange
  end
  object LabelsHeading: TLabel
    Left = 16
    Top = 304
    Width = 440
    Height = 13
    AutoSize = False
    Caption = 'Where it lies, as short as the label is: a click opens it'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object LabelsLine: TBevel
    Left = 16
    Top = 320
    Width = 440
    Height = 2
    Shape = bsTopLine
  end
  object FileLabel: TQELFileLabel
    Left = 16
    Top = 330
    Width = 440
    Height = 17
    AutoSize = False
    ClickOpens = True
    ShowIcon = True
  end
  object FolderLabel: TQELFileLabel3D
    Left = 16
    Top = 356
    Width = 440
    Height = 20
    AutoSize = False
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -13
    Font.Name = 'Tahoma'
    Font.Style = []
    ParentFont = False
    Display = fdFolder
  end
  object IconsHeading: TLabel
    Left = 480
    Top = 8
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'The icons in a file of the system'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object IconsLine: TBevel
    Left = 480
    Top = 24
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object IconBox: TQELIconCombo
    Left = 480
    Top = 34
    Width = 120
    Height = 40
    AccessibleName = 'Icon'
    TabOrder = 3
    OnChange = IconBoxChange
  end
  object IconList: TQELIconListbox
    Left = 480
    Top = 84
    Width = 456
    Height = 170
    AccessibleName = 'Icons'
    TabOrder = 4
    OnClick = IconListClick
  end
  object DroppedHeading: TLabel
    Left = 480
    Top = 272
    Width = 456
    Height = 13
    AutoSize = False
    Caption = 'Files that are dropped here, from any program'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object DroppedLine: TBevel
    Left = 480
    Top = 288
    Width = 456
    Height = 2
    Shape = bsTopLine
  end
  object Told: TMemo
    Left = 480
    Top = 298
    Width = 456
    Height = 206
    AccessibleName = 'Dropped files'
    ReadOnly = True
    ScrollBars = ssBoth
    TabOrder = 5
    WordWrap = False
  end
end
