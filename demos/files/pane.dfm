object Pane: TPane
  Left = 0
  Top = 0
  Width = 490
  Height = 458
  TabOrder = 0
  object TopPanel: TPanel
    Left = 0
    Top = 0
    Width = 490
    Height = 28
    Align = alTop
    BevelOuter = bvNone
    TabOrder = 0
    OnResize = TopResize
    object DriveCombo: TQELDriveCombo
      Left = 0
      Top = 2
      Width = 150
      Height = 22
      AccessibleName = 'Drive'
      TabOrder = 0
      OnClick = DriveClick
    end
    object PathEdit: TQELFileLookup
      Left = 156
      Top = 2
      Width = 334
      Height = 22
      AccessibleName = 'Folder'
      Align = alNone
      DialogTitle = 'Folder'
      TabOrder = 1
      OnKeyDown = PathKeyDown
      OnSelect = PathSelect
    end
  end
  object Tree: TQELExplorerTree
    Left = 0
    Top = 28
    Width = 170
    Height = 412
    AccessibleName = 'Folders'
    Align = alLeft
    HideSelection = False
    TabOrder = 1
    OnEnter = PartEnter
  end
  object Splitter: TSplitter
    Left = 170
    Top = 28
    Width = 4
    Height = 412
    Align = alLeft
  end
  object View: TQELExplorerView
    Left = 174
    Top = 28
    Width = 316
    Height = 412
    AccessibleName = 'Files'
    Align = alClient
    HideSelection = False
    RowSelect = True
    TabOrder = 2
    Tree = Tree
    OnChange = ViewChange
    OnEnter = PartEnter
    OnFolderChange = ViewFolderChange
    OnOpenFile = ViewOpenFile
  end
  object StatusLabel: TLabel
    Left = 0
    Top = 440
    Width = 490
    Height = 18
    Align = alBottom
    AutoSize = False
    Layout = tlCenter
  end
end
