// sendmail HOST PORT FROM TO SUBJECT FILE: sends what is typed, with the file attached.
#include <iostream>

#include "qel/mail/Qeltiemails.h"

int main(int count, char** arguments) {
  if (count != 7) {
    std::cerr << "sendmail HOST PORT FROM TO SUBJECT FILE\n";
    return 2;
  }
  qel::TQELSMTPMail mail(nullptr);
  mail.SetHost(arguments[1]);
  mail.SetPort(arguments[2]);
  // The date as RFC 822 writes it, in place of the user's own way.
  mail.SetDateTimeFormat("dd mmm yyyy hh:nn:ss");

  qel::TQELMessage* message = mail.Messages()->Add();
  message->SetFromMail(arguments[3]);
  message->SetSendTo(arguments[4]);
  message->SetSubject(arguments[5]);
  for (std::string line; std::getline(std::cin, line);) message->Message()->Add(line);
  // The attachment gets the name alone; where the file is, is set afterwards.
  message->Attachments()->Add(arguments[6])->SetFileName(arguments[6]);

  bool sent = false;
  mail.OnAfterSend = [&](vcl::TObject*) { sent = true; };
  mail.OnError = [](vcl::TObject*, int code, const std::string& text) {
    std::cerr << "The server says: " << code << " " << text << "\n";
  };
  return mail.Execute() && sent ? 0 : 1;
}
