// The designer's window for tests of it, with a settings file and a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "host/rtl/classregistry.h"
#include "host/vcl/registration.h"
#include "ide/mainform.h"
#include "tests/support/program.h"
#include "tests/vcl/testinput.h"

namespace ide {

using namespace testinput;
using namespace vcl;
using testing_support::TFolder;

class Designer : public ::testing::Test {
 protected:
  Designer() {
    RegisterHostClasses();
    TStart start;
    start.SettingsFile = (Folder.Path / "designer.ini").string();
    Window = std::make_unique<TMainForm>(nullptr);
    Window->Begin(start, Packages);
    Window->Show();
    PumpUntil([&] { return Window->Active(); });
  }
  ~Designer() override { Window.reset(); }

  TFormDesigner& It() { return Window->FormDesigner(); }
  TFormDocument& Document() { return It().Document(); }
  TForm& Root() { return Document().Root(); }
  std::string File(const char* name) { return (Folder.Path / name).string(); }
  void Write(const char* name, const std::string& text) {
    std::ofstream(Folder.Path / name, std::ios::binary) << text;
  }
  std::string Read(const char* name) {
    std::ifstream file(Folder.Path / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  TPoint At(int x, int y) { return Root().ClientToScreen({x, y}); }
  void Place(const char* className, TPoint from, TPoint to) {
    It().Surface().SetPlacing(&FindClass(className));
    Drag(from, to);
  }
  static void Drag(TPoint from, TPoint to) {
    MoveMouse(from);
    LeftDown();
    MoveMouse({(from.X + to.X) / 2, (from.Y + to.Y) / 2});
    MoveMouse(to);
    LeftUp();
  }
  template <class T = TControl>
  T* Find(const char* name) {
    return dynamic_cast<T*>(Root().FindComponent(name));
  }
  std::vector<std::string> SelectedNames() {
    std::vector<std::string> names;
    for (const TComponent* each : It().Selected().Components()) names.push_back(each->Name());
    return names;
  }
  std::vector<std::string> Messages() {
    std::vector<std::string> lines;
    for (int i = 0; i < Window->MessageList().Items()->Count(); ++i) {
      lines.push_back(Window->MessageList().Items()->Strings(i));
    }
    return lines;
  }

  TFolder Folder;
  TPackages Packages;
  std::unique_ptr<TMainForm> Window;
};

}  // namespace ide
