// Measuring settings in the registry and in INI files against the system's functions.
#include "bench/settings.h"

#include <cstdio>
#include <fstream>
#include <string>

#include "bench/timing.h"
#include "qel/core/Qeltstoredata.h"
#include "vcl/rtl/inifile.h"
#include "vcl/rtl/win32.h"

namespace bench {

namespace {

constexpr int Values = 500;
/// One sample; some 21 of them make 10,000 calls.
constexpr int Calls = 500;
constexpr const char* Path = "Software\\QEL benchmark";
constexpr const char* WholePath = "Software\\QEL benchmark\\Section";
constexpr int Sections = 100;
constexpr int LinesOfSection = 99;

std::string Ident(int i) { return "Value" + std::to_string(i % Values); }
/// Another one each time: what is there already need not be written.
std::string NextValue() {
  static int next = 0;
  return "value " + std::to_string(++next);
}

template <class Work>
void Times(int count, Work work) {
  for (int i = 0; i < count; ++i) work(i);
}

void WriteRegistry(int i) {
  const std::string value = NextValue();
  ::RegSetKeyValueA(HKEY_CURRENT_USER, WholePath, Ident(i).c_str(), REG_SZ, value.c_str(),
                    static_cast<DWORD>(value.size() + 1));
}

void ReadRegistry(int i) {
  char value[256];
  DWORD size = sizeof value;
  ::RegGetValueA(HKEY_CURRENT_USER, WholePath, Ident(i).c_str(), RRF_RT_REG_SZ, nullptr, value,
                 &size);
}

void MeasureRegistry() {
  TTable table("Values in a section of the registry, against RegGetValue and RegSetKeyValue",
               "500 calls, some 21 times. The store makes its path anew with each call, as it is "
               "said to; TRegIniFile stays open. Aim: at most 1.2.",
               {"reading", "writing"});
  Times(Values, WriteRegistry);
  vcl::TRegIniFile file(Path);
  table.Add(
      "TRegIniFile",
      {Compare([&] { Times(Calls, [&](int i) { file.ReadString("Section", Ident(i), ""); }); },
               [] { Times(Calls, ReadRegistry); }),
       Compare(
           [&] {
             Times(Calls, [&](int i) { file.WriteString("Section", Ident(i), NextValue()); });
           },
           [] { Times(Calls, WriteRegistry); })});
  qel::TQELDataStore store;
  store.Registry()->SetPath(Path);
  store.Registry()->SetSection("Section");
  table.Add("TQELDataStore",
            {Compare([&] { Times(Calls, [&](int i) { store.ReadStr(Ident(i)); }); },
                     [] { Times(Calls, ReadRegistry); }),
             Compare([&] { Times(Calls, [&](int i) { store.WriteStr(Ident(i), NextValue()); }); },
                     [] { Times(Calls, WriteRegistry); })});
  vcl::TRegistry open;
  open.OpenKey(WholePath, true);
  table.Add("TRegistry, its key open",
            {Compare([&] { Times(Calls, [&](int i) { open.ReadString(Ident(i)); }); },
                     [] { Times(Calls, ReadRegistry); }),
             Compare([&] { Times(Calls, [&](int i) { open.WriteString(Ident(i), NextValue()); }); },
                     [] { Times(Calls, WriteRegistry); })});
  ::RegDeleteTreeA(HKEY_CURRENT_USER, Path);
}

std::string Section(int i) { return "Section " + std::to_string(i % Sections); }
std::string LineIdent(int i) { return "Value" + std::to_string(i * 7 % LinesOfSection); }

/// A file of 10,000 lines, gone at the end.
class TFile {
 public:
  explicit TFile(const char* name) {
    char folder[MAX_PATH];
    ::GetTempPathA(MAX_PATH, folder);
    FName = std::string(folder) + name;
    std::ofstream file(FName, std::ios::binary);
    for (int section = 0; section < Sections; ++section) {
      file << "[" << Section(section) << "]\r\n";
      Times(LinesOfSection,
            [&](int i) { file << "Value" << i << "=this is value " << i << "\r\n"; });
    }
  }
  ~TFile() { ::DeleteFileA(FName.c_str()); }
  const char* Name() const { return FName.c_str(); }

 private:
  std::string FName;
};

void MeasureFile() {
  const TFile ours("qelbench1.ini");
  const TFile systems("qelbench2.ini");
  TTable table("Values in an INI file of 10,000 lines, against the private profile functions",
               "50 calls all over the file, some 21 times or more. Aim: at most 1.2.",
               {"reading", "writing"});
  const auto read = [&](int i) {
    char value[256];
    ::GetPrivateProfileStringA(Section(i).c_str(), LineIdent(i).c_str(), "", value, sizeof value,
                               systems.Name());
  };
  const auto write = [&](int i) {
    ::WritePrivateProfileStringA(Section(i).c_str(), LineIdent(i).c_str(), NextValue().c_str(),
                                 systems.Name());
  };
  constexpr int FileCalls = 50;
  const auto row = [&](const char* name, auto ourRead, auto ourWrite) {
    table.Add(name,
              {Compare([&] { Times(FileCalls, ourRead); }, [&] { Times(FileCalls, read); }),
               Compare([&] { Times(FileCalls, ourWrite); }, [&] { Times(FileCalls, write); })});
  };
  vcl::TIniFile file(ours.Name());
  row(
      "TIniFile", [&](int i) { file.ReadString(Section(i), LineIdent(i), ""); },
      [&](int i) { file.WriteString(Section(i), LineIdent(i), NextValue()); });
  qel::TQELDataStore store;
  store.SetDatatype(qel::sIniFile);
  store.Inifile()->SetFilename(ours.Name());
  const auto at = [&](int i) { store.Inifile()->SetSection(Section(i)); };
  row(
      "TQELDataStore", [&](int i) { at(i), store.ReadStr(LineIdent(i)); },
      [&](int i) { at(i), store.WriteStr(LineIdent(i), NextValue()); });
  // Opened and written once for all calls.
  const auto inMemory = [&](auto call) {
    vcl::TMemIniFile memory(ours.Name());
    Times(FileCalls, [&](int i) { call(memory, i); });
    memory.UpdateFile();
  };
  table.Add(
      "TMemIniFile, all at once",
      {Compare(
           [&] {
             inMemory([](auto& memory, int i) { memory.ReadString(Section(i), LineIdent(i), ""); });
           },
           [&] { Times(FileCalls, read); }),
       Compare(
           [&] {
             inMemory([](auto& memory, int i) {
               memory.WriteString(Section(i), LineIdent(i), NextValue());
             });
           },
           [&] { Times(FileCalls, write); })});
}

}  // namespace

void Settings() {
  MeasureRegistry();
  MeasureFile();
}

}  // namespace bench
