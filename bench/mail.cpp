// Measuring base64 and the reading of a large mail against other programs.
#include "bench/mail.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>

#include "bench/gmime.h"
#include "bench/mailsink.h"
#include "bench/timing.h"
#include "qel/mail/Qeltiemails.h"
#include "qel/mail/private/base64.h"
#include "qel/mail/private/lenientbase64.h"

namespace bench {

namespace {

constexpr std::size_t Size = std::size_t{64} << 20;

/// A folder in memory with noise in a file, as bytes ("noise") and in base64 ("letters").
class TFiles {
 public:
  TFiles() : FFolder("/dev/shm/qel-bench-mail") {
    std::filesystem::create_directories(FFolder);
    std::filesystem::current_path(FFolder);
    std::string bytes(Size, '\0');
    std::minstd_rand random;
    for (char& byte : bytes) byte = static_cast<char>(random());
    std::ofstream("noise", std::ios::binary) << bytes;
    Run("base64 noise >letters");
  }
  ~TFiles() {
    std::filesystem::current_path("/");
    std::filesystem::remove_all(FFolder);
  }

  static void Run(const std::string& command) {
    if (std::system(command.c_str()) != 0) throw std::runtime_error(command + " failed");
  }

 private:
  std::filesystem::path FFolder;
};

/// A program in Python that does it once, with everything in memory; its start is measured too.
std::string Python(const std::string& call) {
  return "/usr/bin/python3 -c 'import base64; base64." + call + "'";
}

/// A mail of 50 MB as a server sends it: a text and an attachment.
std::string LargeMail() {
  constexpr std::size_t attachment = 36'500'000;
  TFiles::Run("head -c " + std::to_string(attachment) + " noise | base64 | sed s/$/\\\\r/ >part");
  std::ifstream file("part", std::ios::binary);
  const std::string letters{std::istreambuf_iterator<char>(file), {}};
  return "+OK\r\nFrom: Ann <ann@a.test>\r\nSubject: Noise\r\n"
         "Content-Type: multipart/mixed; boundary=\"b\"\r\n\r\n"
         "--b\r\n\r\nhello\r\n--b\r\nContent-Transfer-Encoding: base64\r\n"
         "Content-Disposition: attachment; filename=\"noise\"\r\n\r\n" +
         letters + "--b--\r\n.\r\n";
}

void ReadMail() {
  const std::string mail = LargeMail();
  const std::string alone = mail.substr(5, mail.size() - 8);
  std::ofstream("mail", std::ios::binary) << alone;
  qel::TQELPOPMail classic(nullptr), standard(nullptr);
  standard.SetFormat(qel::mfStandard);
  const auto reading = [&](qel::TQELPOPMail& receiver) {
    return [&] {
      receiver.Messages()->Clear();
      receiver.ReadMessage(mail);
    };
  };
  const auto python = [] {
    TFiles::Run(
        "/usr/bin/python3 -c 'import email; m = email.message_from_binary_file(open(\"mail\", "
        "\"rb\")); m.get_payload(1).get_payload(decode=True)'");
  };
  const auto gmime = [&] { ReadWithGMime(alone); };
  TTable table("A mail of 50 MB with one attachment, against GMime and Python's email package",
               "From the mail in memory to its attachment's bytes; Python's start is measured too. "
               "Aim: at most 0.8 and 0.1.",
               {"GMime", "Python"});
  for (const auto& [name, receiver] :
       {std::pair{"Classic format", &classic}, {"Standard format", &standard}}) {
    table.Add(name, {Compare(reading(*receiver), gmime), Compare(reading(*receiver), python)});
  }
}

/// Small mails over one session, against curl.
void SendMany() {
  constexpr int count = 10000;
  const TMailSink sink;
  const std::string port = std::to_string(sink.Port());
  qel::TQELSMTPMail sender(nullptr);
  sender.SetHost("127.0.0.1");
  sender.SetPort(port);
  sender.SetFormat(qel::mfStandard);
  std::ofstream("small")
      << "From: <ann@a.test>\r\nTo: <bob@a.test>\r\nSubject: Small\r\n\r\nHello\r\n";
  std::ofstream configuration("curl");
  for (int i = 0; i < count; ++i) {
    qel::TQELMessage* const message = sender.Messages()->Add();
    message->SetFromMail("ann@a.test");
    message->SetSendTo("bob@a.test");
    message->SetSubject("Small");
    message->Message()->Add("Hello");
    configuration << (i > 0 ? "next\n" : "") << "url = smtp://127.0.0.1:" << port
                  << "\nmail-from = ann@a.test\nmail-rcpt = bob@a.test\nupload-file = small\n";
  }
  configuration.close();
  const auto ours = [&] {
    const int before = sink.Mails();
    sender.Execute();
    if (sink.Mails() != before + count) throw std::runtime_error("Mails are missing");
  };
  TTable table(
      "10,000 small mails over one session, against curl",
      "To a server that only counts; curl writes no mails, it sends a file. Aim: at most 1.",
      {"curl"});
  table.Add("Sending",
            {CompareLeast(ours, [] { TFiles::Run("curl -s -S -K curl >curl.log 2>&1"); })});
}

/// Base64 from memory to memory.
void CodeAgainstGMime() {
  const std::string bytes(Size, 'x');
  const std::string letters = EncodedByGMime(bytes);
  std::string ours((Size + 2) / 3 * 4, '\0');
  const auto encode = [&] {
    qel::EncodeBase64(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(),
                      ours.data());
  };
  TTable table("64 MiB in base64, in memory, against GMime",
               "GMime's letters have lines, which are skipped when they are read. Aim: at most 1.",
               {"GMime"});
  table.Add("Encoding", {Compare(encode, [&] { EncodedByGMime(bytes); })});
  table.Add("Decoding", {Compare([&] { qel::DecodeLenientBase64(letters); },
                                 [&] { DecodedByGMime(letters); })});
}

}  // namespace

void Mail() {
  const TFiles files;
  qel::TQELSMTPMail sender(nullptr);
  qel::TQELPOPMail receiver(nullptr);
  qel::TQELAttachment* sent = sender.Messages()->Add()->Attachments()->Add("noise");
  const auto encode = [&] { sender.Base64Encode(*sent); };
  encode();
  qel::TQELAttachment* received = receiver.Messages()->Add()->Attachments()->Add("noise");
  received->Lines()->Assign(sent->Lines());
  const auto decode = [&] {
    received->Data()->Clear();
    receiver.Base64Decode(*received);
  };
  const auto shell = [](const std::string& command) { return [command] { TFiles::Run(command); }; };

  TTable table(
      "An attachment of 64 MiB in base64, against other programs",
      "From a file in memory to lines, and from lines to bytes, which stay in memory; the others "
      "read a file in memory and keep the result there too. Aim: at most 1.",
      {"coreutils", "Python"});
  table.Add("Encoding",
            {Compare(encode, shell("base64 noise >kept")),
             Compare(encode, shell(Python("encodebytes(open(\"noise\",\"rb\").read())")))});
  table.Add("Decoding",
            {Compare(decode, shell("base64 -d letters >kept")),
             Compare(decode, shell(Python("decodebytes(open(\"letters\",\"rb\").read())")))});
  if (HasGMime()) {
    ReadMail();
    CodeAgainstGMime();
  } else {
    std::printf("GMime (libgmime-3.0-0) is missing: mails are not measured against it.\n");
  }
  SendMany();
}

}  // namespace bench
