object OptionsForm: TOptionsForm
  Left = 300
  Top = 220
  ActiveControl = KeepEdit
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'Options'
  ClientHeight = 190
  ClientWidth = 400
  Color = clBtnFace
  Position = poScreenCenter
  object UnsavedBox: TGroupBox
    Left = 12
    Top = 8
    Width = 376
    Height = 56
    Caption = 'Unsaved text'
    TabOrder = 0
    object KeepLabel: TLabel
      Left = 12
      Top = 25
      Width = 200
      Height = 13
      Caption = '&Keep it safe every so many seconds:'
      FocusControl = KeepEdit
    end
    object KeepEdit: TQELSpinEdit
      Left = 270
      Top = 20
      Width = 80
      Height = 22
      Cursor = crDefault
      MaxValue = 600
      MinValue = 1
      TabOrder = 0
      Value = 5
    end
  end
  object FilesBox: TGroupBox
    Left = 12
    Top = 72
    Width = 376
    Height = 76
    Caption = 'Habits'
    TabOrder = 1
    object EndsLabel: TLabel
      Left = 12
      Top = 23
      Width = 160
      Height = 13
      Caption = 'Line ends of &new files:'
      FocusControl = EndsCombo
    end
    object EndsCombo: TComboBox
      Left = 200
      Top = 19
      Width = 164
      Height = 21
      Style = csDropDownList
      Items.Strings = (
        'CR LF (Windows)'
        'LF (Unix)')
      TabOrder = 0
    end
    object CloseToTrayBox: TCheckBox
      Left = 12
      Top = 48
      Width = 352
      Height = 17
      Caption = '&Closing the window leaves Notes in the tray'
      TabOrder = 1
    end
  end
  object OkButton: TButton
    Left = 220
    Top = 156
    Width = 80
    Height = 25
    Caption = 'OK'
    Default = True
    ModalResult = mrOk
    TabOrder = 2
  end
  object CancelButton: TButton
    Left = 308
    Top = 156
    Width = 80
    Height = 25
    Cancel = True
    Caption = 'Cancel'
    ModalResult = mrCancel
    TabOrder = 3
  end
end
