object AccountForm: TAccountForm
  Left = 280
  Top = 200
  ActiveControl = NameEdit
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'Account'
  ClientHeight = 293
  ClientWidth = 540
  Color = clBtnFace
  Position = poScreenCenter
  ShowHint = True
  object NameLabel: TLabel
    Left = 16
    Top = 16
    Width = 100
    Height = 13
    Caption = 'Your &name:'
    FocusControl = NameEdit
  end
  object NameEdit: TEdit
    Left = 124
    Top = 12
    Width = 400
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
    Left = 124
    Top = 40
    Width = 400
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
    Left = 124
    Top = 68
    Width = 160
    Height = 21
    TabOrder = 2
  end
  object SmtpPortLabel: TLabel
    Left = 292
    Top = 72
    Width = 34
    Height = 13
    Caption = 'port'
    FocusControl = SmtpPortEdit
  end
  object SmtpPortEdit: TEdit
    Left = 328
    Top = 68
    Width = 60
    Height = 21
    TabOrder = 3
  end
  object SmtpSecurityBox: TComboBox
    Left = 396
    Top = 68
    Width = 128
    Height = 21
    Hint = 'How the connection to the server is secured'
    Style = csDropDownList
    TabOrder = 4
    Items.Strings = (
      'Not secured'
      'STARTTLS'
      'TLS')
    OnChange = SmtpSecurityChange
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
    Left = 124
    Top = 96
    Width = 160
    Height = 21
    TabOrder = 5
  end
  object PopPortLabel: TLabel
    Left = 292
    Top = 100
    Width = 34
    Height = 13
    Caption = 'port'
    FocusControl = PopPortEdit
  end
  object PopPortEdit: TEdit
    Left = 328
    Top = 96
    Width = 60
    Height = 21
    TabOrder = 6
  end
  object PopSecurityBox: TComboBox
    Left = 396
    Top = 96
    Width = 128
    Height = 21
    Hint = 'How the connection to the server is secured'
    Style = csDropDownList
    TabOrder = 7
    Items.Strings = (
      'Not secured'
      'STARTTLS'
      'TLS')
    OnChange = PopSecurityChange
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
    Left = 124
    Top = 124
    Width = 400
    Height = 21
    TabOrder = 8
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
    Left = 124
    Top = 152
    Width = 400
    Height = 21
    PasswordChar = '*'
    TabOrder = 9
  end
  object LogInBox: TCheckBox
    Left = 124
    Top = 182
    Width = 400
    Height = 17
    Caption = '&Log in for sending, too'
    TabOrder = 10
  end
  object KeepPasswordBox: TCheckBox
    Left = 124
    Top = 204
    Width = 400
    Height = 17
    Caption = '&Keep the password, encrypted for you alone'
    TabOrder = 11
  end
  object DeleteBox: TCheckBox
    Left = 124
    Top = 226
    Width = 400
    Height = 17
    Caption = '&Delete mails on the server once they are fetched'
    TabOrder = 12
  end
  object OkButton: TButton
    Left = 348
    Top = 256
    Width = 84
    Height = 25
    Caption = 'OK'
    Default = True
    TabOrder = 13
    OnClick = OkClick
  end
  object CancelButton: TButton
    Left = 440
    Top = 256
    Width = 84
    Height = 25
    Cancel = True
    Caption = 'Cancel'
    ModalResult = mrCancel
    TabOrder = 14
  end
end
