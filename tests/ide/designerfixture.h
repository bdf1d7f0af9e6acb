// The designer's window for tests of it, with a settings file and a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "host/rtl/classregistry.h"
#include "host/rtl/text.h"
#include "host/vcl/registration.h"
#include "ide/inspectorgrid.h"
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
  /// Opens a form of those components.
  void OpenForm(const std::string& components) {
    Write("form.dfm", Concat("object F: TF\n Left = 40\n Top = 30\n ClientHeight = 300\n"
                             " ClientWidth = 420\n",
                             components, "end\n"));
    ASSERT_TRUE(Window->Open(File("form.dfm")));
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
  /// Presses keys, written like short cuts with blanks between, one directly behind another: those
  /// behind the one that opens a menu go there.
  static void Keys(const std::string& keys) {
    SendKeys(keys);
    Pump();
  }
  /// Presses or releases a button of the mouse for what keys that follow at once are meant for.
  static void QueueMouse(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    ::SendInput(1, &input, sizeof input);
  }
  static void SendKeys(const std::string& keys) {
    std::istringstream words(keys);
    for (std::string word; words >> word;) {
      const TShortCut key = TextToShortCut(word);
      const std::pair<TShortCut, WORD> modifiers[] = {
          {scShift, VK_SHIFT}, {scCtrl, VK_CONTROL}, {scAlt, VK_MENU}};
      for (const auto& [flag, code] : modifiers) {
        if (key & flag) SendKey(code, true);
      }
      SendKey(static_cast<WORD>(key & 0xFF), true);
      SendKey(static_cast<WORD>(key & 0xFF), false);
      for (const auto& [flag, code] : modifiers) {
        if (key & flag) SendKey(code, false);
      }
    }
  }
  /// The same, with keys for each dialog that comes up then, one after another, by its caption.
  void KeysInDialogs(const std::string& keys,
                     const std::vector<std::pair<std::string, std::function<void()>>>& dialogs) {
    std::thread user([&] {
      for (const auto& [caption, act] : dialogs) {
        const auto shown = [&] {
          char text[100] = "";
          ::GetWindowTextA(::GetForegroundWindow(), text, sizeof text);
          return caption == text;
        };
        for (int i = 0; i < Patience / 20 && !shown(); ++i) ::Sleep(20);
        EXPECT_TRUE(shown()) << caption;
        ::Sleep(
            200);  // What opens a window asks the screen for the keyboard, which takes a moment.
        act();
      }
    });
    Keys(keys);
    user.join();
    EXPECT_TRUE(PumpUntil([&] { return ::GetForegroundWindow() == Window->Handle(); }));
  }
  void KeysInMenuAt(TPoint screen, const std::string& keys) {
    MoveMouse(screen);
    RightDown();
    QueueMouse(MOUSEEVENTF_RIGHTUP);
    Keys(keys);
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

  /// Puts the keyboard at the value of the property, with all of it selected.
  void ClickValue(const char* property) {
    TInspectorGrid& grid = Window->Inspector().Properties();
    grid.SelectRow(grid.IndexOf(property));
    const TRect row = grid.RowRect(grid.SelectedRow());
    Click(grid.ClientToScreen({grid.Splitter() / 2, row.Top + 5}));
  }

  TFolder Folder;
  TPackages Packages;
  std::unique_ptr<TMainForm> Window;
};

}  // namespace ide
