#include "bench/mail.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>

#include "bench/timing.h"
#include "mail/Qeltiemails.h"

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
}

}  // namespace bench
