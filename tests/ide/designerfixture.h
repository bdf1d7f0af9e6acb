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

#include "ide/inspectorgrid.h"
#include "ide/mainform.h"
#include "tests/support/program.h"
#include "tests/vcl/testinput.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace testinput;
using namespace vcl;
using testing_support::TFolder;

/// Types on the keyboard.
inline void Type(const std::string& text) {
  for (const wchar_t character : ToUtf16(text)) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = character;
    input.ki.dwFlags = KEYEVENTF_UNICODE;
    ::SendInput(1, &input, sizeof input);
    input.ki.dwFlags |= KEYEVENTF_KEYUP;
    ::SendInput(1, &input, sizeof input);
  }
}

/// A designer that a test starts.
class UnstartedDesigner : public ::testing::Test {
 protected:
  UnstartedDesigner() { RegisterStandardClasses(); }
  ~UnstartedDesigner() override { Window.reset(); }
  void Start(const char* settings = "designer.ini") {
    TStart start;
    start.SettingsFile = (Folder.Path / settings).string();
    Window = std::make_unique<TMainForm>(nullptr);
    Window->Begin(start, Packages);
    Window->Show();
    PumpUntil([&] { return Window->Active(); });
  }

  TFormDesigner& It() { return Window->FormDesigner(); }
  TFormDocument& Document() { return It().Document(); }
  TForm& Root() { return dynamic_cast<TForm&>(Document().Root()); }
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

  /// Clicks the tab with the caption.
  static void ChoosePage(TPageControl& pages, const std::string& caption) {
    for (int i = 0; i < pages.PageCount(); ++i) {
      if (pages.Pages(i)->Caption() != caption) continue;
      RECT tab{};
      ::SendMessageW(pages.Handle(), TCM_GETITEMRECT, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(&tab));
      Click(pages.ClientToScreen({static_cast<int>(tab.left) + 10, static_cast<int>(tab.top) + 8}));
    }
    EXPECT_EQ(pages.ActivePage()->Caption(), caption);
  }
  // The inspector.
  TInspectorGrid& Grid() {
    return Window->Inspector().EventsShown() ? Window->Inspector().Events()
                                             : Window->Inspector().Properties();
  }
  TPoint InLine(int row, int x) {
    const TRect line = Grid().RowRect(row);
    return Grid().ClientToScreen({x, (line.Top + line.Bottom) / 2});
  }
  /// Turns the mouse's wheel until the line is seen.
  void BringIntoView(int row) {
    MoveMouse(MiddleOf(&Grid()));
    const auto hidden = [&] {
      const TRect line = Grid().RowRect(row);
      return line.Top < 0 ? 1 : line.Bottom > Grid().ClientHeight() ? -1 : 0;
    };
    for (int turns = 0; hidden() != 0 && turns < 100; ++turns) {
      INPUT wheel{};
      wheel.type = INPUT_MOUSE;
      wheel.mi.dwFlags = MOUSEEVENTF_WHEEL;
      wheel.mi.mouseData = static_cast<DWORD>(hidden() * WHEEL_DELTA);
      ::SendInput(1, &wheel, sizeof wheel);
      Pump();
    }
  }
  int LineOf(const std::string& path) {
    const int row = Grid().IndexOf(path);
    EXPECT_GE(row, 0) << path;
    BringIntoView(row);
    return row;
  }
  void SetProperty(const std::string& path, const std::string& value) {
    for (std::size_t dot = 0; (dot = path.find('.', dot)) != std::string::npos; ++dot) {
      const int around = LineOf(path.substr(0, dot));
      if (!Grid().Row(around).Expanded) Click(InLine(around, 6 + 10 * Grid().Row(around).Depth));
    }
    const int row = LineOf(path);
    Click(InLine(row, Grid().Splitter() - 10));
    Type(value);
    TypeKey(VK_RETURN);
    EXPECT_EQ(Grid().Row(row).Value, value) << path;
  }

  std::vector<std::string> Tabs() {
    std::vector<std::string> captions;
    const TPageControl& pages = Window->Forms().Pages();
    for (int i = 0; i < pages.PageCount(); ++i) captions.push_back(pages.Pages(i)->Caption());
    return captions;
  }

  TFolder Folder;
  TPackages Packages;
  std::unique_ptr<TMainForm> Window;
};

/// A designer with an empty form.
class Designer : public UnstartedDesigner {
 protected:
  Designer() { Start(); }
};

}  // namespace ide
