// What the tests of the mail components share: an application that writes down what it shows, and a
// folder for files.
#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "host/rtl/customapplication.h"
#include "host/rtl/exceptions.h"

class TTestApplication : public vcl::TCustomApplication {
 public:
  TTestApplication() : TCustomApplication(nullptr) { SetTitle("Mail test"); }
  void ProcessMessages() override {
    if (OnPump) OnPump();
  }
  void HandleException(vcl::TObject*, const std::exception& error) override {
    if (!dynamic_cast<const vcl::EAbort*>(&error)) Errors.push_back(error.what());
  }
  int MessageBox(const std::string& text, const std::string&, int) override {
    Errors.push_back(text);
    return 1;
  }

  std::function<void()> OnPump;
  std::vector<std::string> Errors;
};

/// A folder that is the current one and goes with all its files.
class TWorkFolder {
 public:
  explicit TWorkFolder(const char* name)
      : FBefore(std::filesystem::current_path()),
        FPath(std::filesystem::temp_directory_path() / name) {
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
