// What the tests of data sets share.
#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <string>

#include "vcl/db/dataset.h"

/// A folder that goes with all its files.
class TDataFolder {
 public:
  explicit TDataFolder(const char* name) : FPath(std::filesystem::temp_directory_path() / name) {
    std::filesystem::remove_all(FPath);
    std::filesystem::create_directories(FPath);
  }
  ~TDataFolder() { std::filesystem::remove_all(FPath); }
  std::string File(const char* name) const { return (FPath / name).string(); }

 private:
  std::filesystem::path FPath;
};

inline std::string Contents(const std::string& name) {
  std::ifstream file(name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteContents(const std::string& name, const std::string& bytes) {
  std::ofstream(name, std::ios::binary) << bytes;
}

/// All records from the first on, values joined by "|", records by ";".
inline std::string Dump(vcl::TDataSet& data) {
  std::string text;
  for (data.First(); !data.Eof(); data.Next()) {
    if (!text.empty()) text += ";";
    for (int i = 0; i < data.FieldCount(); ++i) {
      text += (i ? "|" : "") + data.Fields()[i]->AsString();
    }
  }
  return text;
}

inline std::string Message(const std::function<void()>& call) {
  try {
    call();
  } catch (const vcl::EDatabaseError& error) {
    return error.Message();
  }
  return "nothing was raised";
}
