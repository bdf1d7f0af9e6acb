// What the tests of the mail components share: an application that writes down what it shows, and a
// folder for files.
#pragma once

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <typeinfo>
#include <vector>

#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/exceptions.h"

class TTestApplication : public vcl::TCustomApplication {
 public:
  TTestApplication() : TCustomApplication(nullptr) { SetTitle("Mail test"); }
  void ProcessMessages() override {
    if (OnPump) OnPump();
  }
  void HandleException(vcl::TObject*, const std::exception& error) override {
    if (dynamic_cast<const vcl::EAbort*>(&error)) return;
    Errors.push_back(error.what());
    ErrorType = &typeid(error);
  }
  int MessageBox(const std::string& text, const std::string&, int) override {
    Errors.push_back(text);
    if (OnBox) OnBox();
    return 1;
  }

  std::function<void()> OnPump, OnBox;
  std::vector<std::string> Errors;
  /// Of the last one that was raised.
  const std::type_info* ErrorType = nullptr;
};

/// A folder that is the current one and goes with all its files.
class TWorkFolder {
 public:
  explicit TWorkFolder(const std::string& name)
      : FBefore(std::filesystem::current_path()),
        FPath(std::filesystem::temp_directory_path() / (name + std::to_string(::getpid()))) {
    std::filesystem::remove_all(FPath);
    std::filesystem::create_directories(FPath);
    std::filesystem::current_path(FPath);
  }
  ~TWorkFolder() {
    std::filesystem::current_path(FBefore);
    std::filesystem::remove_all(FPath);
  }
  std::filesystem::path Path() const { return FPath; }

 private:
  std::filesystem::path FBefore, FPath;
};

/// Bytes without a pattern, the same in each run.
inline std::string Noise(std::size_t size) {
  std::string bytes;
  for (std::uint32_t state = 1; bytes.size() < size; bytes += static_cast<char>(state >> 24)) {
    state = state * 1664525 + 1013904223;
  }
  return bytes;
}

inline void WriteFile(const std::string& name, const std::string& bytes) {
  std::ofstream(name, std::ios::binary) << bytes;
}

inline std::string ReadFile(const std::filesystem::path& name) {
  std::ifstream file(name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

#ifndef _WIN32
/// What another mail reader, Python's, sees in the file: the subject, the sender and the number of
/// recipients, and each attachment's name and whether it is the same as the file of that name.
inline std::string ReadElsewhere(const std::string& fileName) {
  WriteFile("read.py", R"(
import email, email.policy, sys
m = email.message_from_binary_file(open(sys.argv[1], 'rb'), policy=email.policy.default)
assert not m.defects, m.defects
print(m['Subject'], m['From'].addresses[0].addr_spec, len(m['To'].addresses), sep='|')
for part in m.iter_attachments():
  print(part.get_filename(), part.get_content() == open(part.get_filename(), 'rb').read())
)");
  FILE* python = popen(("timeout 60 /usr/bin/python3 read.py " + fileName + " 2>&1").c_str(), "r");
  std::string said;
  for (int c; (c = fgetc(python)) != EOF;) said += static_cast<char>(c);
  pclose(python);
  return said;
}
#endif
