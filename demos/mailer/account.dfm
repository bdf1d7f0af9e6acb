object AccountForm: TAccountForm
  Left = 280
  Top = 200
  ActiveControl = NameEdit
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'Account'
  ClientHeight = 270
  ClientWidth = 400
  Color = clBtnFace
  Position = poScreenCenter
  object NameLabel: TLabel
    Left = 16
    Top = 16
    Width = 100
    Height = 13
    Caption = 'Your &name:'
    FocusControl = NameEdit
  end
  object NameEdit: TEdit
    Left = 120
    Top = 12
    Width = 264
    Height = 21
    TabOrder = 0
  end
  object AddressLabel: TLabel
    Left = 16
    Top = 44
    Width = 100
    Height = 13
    Caption = '&Address:'
    FocusControl = AddressEdit
  end
  object AddressEdit: TEdit
    Left = 120
    Top = 40
    Width = 264
    Height = 21
    TabOrder = 1
  end
  object SmtpLabel: TLabel
    Left = 16
    Top = 72
    Width = 100
    Height = 13
    Caption = '&Sends through:'
    FocusControl = SmtpHostEdit
  end
  object SmtpHostEdit: TEdit
    Left = 120
    Top = 68
    Width = 170
    Height = 21
    TabOrder = 2
  end
  object SmtpPortLabel: TLabel
    Left = 298
    Top = 72
    Width = 30
    Height = 13
    Caption = 'port'
    FocusControl = SmtpPortEdit
  end
  object SmtpPortEdit: TEdit
    Left = 330
    Top = 68
    Width = 54
    Height = 21
    TabOrder = 3
  end
  object PopLabel: TLabel
    Left = 16
    Top = 100
    Width = 100
    Height = 13
    Caption = '&Mailbox at:'
    FocusControl = PopHostEdit
  end
  object PopHostEdit: TEdit
    Left = 120
    Top = 96
    Width = 170
    Height = 21
    TabOrder = 4
  end
  object PopPortLabel: TLabel
    Left = 298
    Top = 100
    Width = 30
    Height = 13
    Caption = 'port'
    FocusControl = PopPortEdit
  end
  object PopPortEdit: TEdit
    Left = 330
    Top = 96
    Width = 54
    Height = 21
    TabOrder = 5
  end
  object UserLabel: TLabel
    Left = 16
    Top = 128
    Width = 100
    Height = 13
    Caption = '&User:'
    FocusControl = UserEdit
  end
  object UserEdit: TEdit
    Left = 120
    Top = 124
    Width = 264
    Height = 21
    TabOrder = 6
  end
  object PasswordLabel: TLabel
    Left = 16
    Top = 156
    Width = 100
    Height = 13
    Caption = '&Password:'
    FocusControl = PasswordEdit
  end
  object PasswordEdit: TEdit
    Left = 120
    Top = 152
    Width = 264
    Height = 21
    PasswordChar = '*'
    TabOrder = 7
  end
  object KeepPasswordBox: TCheckBox
    Left = 120
    Top = 180
    Width = 270
    Height = 17
    Caption = '&Keep the password, readable, in the settings'
    TabOrder = 8
  end
  object DeleteBox: TCheckBox
    Left = 120
    Top = 202
    Width = 270
    Height = 17
    Caption = '&Delete mails on the server once they are fetched'
    TabOrder = 9
  end
  object OkButton: TButton
    Left = 208
    Top = 236
    Width = 84
    Height = 25
    Caption = 'OK'
    Default = True
    TabOrder = 10
    OnClick = OkClick
  end
  object CancelButton: TButton
    Left = 300
    Top = 236
    Width = 84
    Height = 25
    Cancel = True
    Caption = 'Cancel'
    ModalResult = mrCancel
    TabOrder = 11
  end
end
