// Measuring base64 and the reading of a large mail against other programs.
#include "bench/mail.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>

#include "bench/timing.h"
#include "qel/mail/Qeltiemails.h"

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
  std::ofstream("mail", std::ios::binary) << mail.substr(5, mail.size() - 8);
  qel::TQELPOPMail receiver(nullptr);
  const auto ours = [&] {
    receiver.Messages()->Clear();
    receiver.ReadMessage(mail);
  };
  const auto python = [] {
    TFiles::Run(
        "/usr/bin/python3 -c 'import email; m = email.message_from_binary_file(open(\"mail\", "
        "\"rb\")); m.get_payload(1).get_payload(decode=True)'");
  };
  TTable table("A mail of 50 MB with one attachment, against Python's email package",
               "From the mail in memory to its attachment's bytes; Python's start is measured too. "
               "Aim: at most 0.1.",
               {"Python"});
  table.Add("Reading", {Compare(ours, python)});
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
  ReadMail();
}

}  // namespace bench
