// What handlers may free: the control that tells them something, the control around it, or the
// form. Each control that can be made by name is told of everything that a user or a program does
// to it, with each of its events bound to such a handler.
#include <gmock/gmock.h>

#include <cstring>
#include <memory>

#include "tests/support/importpatch.h"
#include "tests/support/registered.h"
#include "tests/vcl/testinput.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/inplaceedit.h"

#include <shellapi.h>

namespace {

using namespace vcl;

#ifdef _WIN64
constexpr const char* DeleteName = "_ZdlPvy";
#else
constexpr const char* DeleteName = "_ZdlPvj";
#endif

/// Freed memory holds no object that still seems to work: whoever uses it faults.
void DeleteAndOverwrite(void* object, std::size_t size) {
  if (object) std::memset(object, 0xDD, size);
  ::operator delete(object);
}

/// Binds the call to the event, if it is of this type.
template <class... A>
bool BindAs(TEventBase& event, const std::function<void()>& call) {
  auto* typed = dynamic_cast<TEvent<A...>*>(&event);
  if (typed) *typed = [call](A...) { call(); };
  return typed != nullptr;
}

bool Bind(TEventBase& event, const std::function<void()>& call) {
  return BindAs<TObject*>(event, call) ||
         BindAs<TObject*, std::uint16_t&, TShiftState>(event, call) ||
         BindAs<TObject*, char32_t&>(event, call) ||
         BindAs<TObject*, TMouseButton, TShiftState, int, int>(event, call) ||
         BindAs<TObject*, TShiftState, int, int>(event, call) ||
         BindAs<TObject*, bool&>(event, call) || BindAs<TObject*, TTreeNode*>(event, call) ||
         BindAs<TObject*, TTreeNode*, bool&>(event, call) ||
         BindAs<TObject*, TListItem*, TItemChange>(event, call) ||
         BindAs<TObject*, THeaderSection*>(event, call) ||
         BindAs<TObject*, THeaderSection*, int, TSectionTrackState>(event, call) ||
         BindAs<TObject*, TListItem*, bool>(event, call) ||
         BindAs<TObject*, int, int>(event, call) || BindAs<TObject*, int, int&>(event, call) ||
         BindAs<TObject*, TStrings*>(event, call) || BindAs<TObject*, const TRect&>(event, call) ||
         BindAs<TObject*, int>(event, call) || BindAs<TObject*, std::string&, bool&>(event, call) ||
         BindAs<TObject*, int, int, bool&>(event, call) ||
         BindAs<TObject*, int, int, std::string&>(event, call) ||
         BindAs<TObject*, int, int, const std::string&>(event, call) ||
         BindAs<TObject*, int, int, TEditStyle&>(event, call) ||
         BindAs<TObject*, int, int, TStrings*>(event, call) ||
         BindAs<TObject*, int, int, const TRect&, TGridDrawState>(event, call) ||
         BindAs<TObject*, int, int&>(event, call) || BindAs<TObject*, int, bool>(event, call) ||
         BindAs<TObject*, int, int, int, int&>(event, call) ||
         BindAs<TObject*, qel::TQELHeaderSection*>(event, call) ||
         BindAs<TObject*, qel::TQELHeaderSection*, int&>(event, call) ||
         BindAs<TObject*, qel::TQELHeaderSection*, const TRect&, bool>(event, call);
}

enum class TVictim { Control, Panel, Form };
constexpr TVictim Victims[] = {TVictim::Control, TVictim::Panel, TVictim::Form};

/// A form with a panel that holds the control, and an edit to go to.
class TScene {
 public:
  TScene(const TClass& tested, const std::string& event, TVictim victim) : FVictim(victim) {
    Form = new TForm(nullptr);
    Panel = new TPanel(Form);
    Panel->SetParent(Form);
    Other = new TEdit(Form);
    Other->SetParent(Form);
    Other->SetTop(100);
    Control = dynamic_cast<TControl*>(tested.Maker().Component(Form));
    Control->SetParent(Panel);
    Control->SetBounds(5, 5, 80, 30);
    if (auto* list = dynamic_cast<TCustomListView*>(Control)) {
      list->SetViewStyle(vsReport);
      for (const char* each : {"one", "two"}) list->Items()->AddItem(each);
    }
    if (auto* header = dynamic_cast<THeaderControl*>(Control)) header->Sections()->Add();
    if (auto* tabs = dynamic_cast<TTabControl*>(Control)) {
      for (const char* each : {"&one", "&two"}) tabs->Tabs()->Add(each);
    }
    if (auto* header = dynamic_cast<qel::TQELHeader*>(Control)) {
      header->SetAllowMove(true);
      for (int i = 0; i < 2; ++i) header->Sections()->Add();
    }
    if (auto* list = dynamic_cast<qel::TQELHeaderList*>(Control)) Fill(*list, event);
    FForm.emplace(Form);
    FPanel.emplace(Panel);
    FOther.emplace(Other);
    FControl.emplace(Control);
    Form->Show();
    const TPropInfo* info = tested.FindPublished(event);
    Bound = Bind(info->EventOf(*Control), [this] { Free(); });
  }
  ~TScene() {
    if (!FForm->Gone()) delete Form;
  }

  bool Whole() const { return !FControl->Gone() && !FPanel->Gone() && !FForm->Gone(); }

  /// Does everything to the control until a handler has freed something.
  void Play() {
    for (const auto& each : Acts()) {
      if (!Whole()) return;
      try {
        each();
        Application()->ProcessMessages();
      } catch (const EAccessViolation&) {
        throw;
      } catch (const Exception&) {
        // Such as an edit's focus that went with the form.
      }
    }
  }

  bool Bound = false;
  bool Freed = false;
  TForm* Form;
  TPanel* Panel;
  TEdit* Other;
  TControl* Control;

 private:
  void Free() {
    // What ends tells of it, too, which is no time to end it again.
    if (Control->Destroying() || std::exchange(Freed, true)) return;
    switch (FVictim) {
      case TVictim::Control: delete Control; return;
      case TVictim::Panel: delete Panel; return;
      case TVictim::Form: delete Form; return;
    }
  }

  /// Virtual rows, or lines where these are sorted.
  void Fill(qel::TQELHeaderList& list, const std::string& event) {
    list.SetCheckBoxes(true);
    list.SetReadOnly(false);
    list.SetImages(new TImageList(Form));
    for (int i = 0; i < 2; ++i) list.Sections()->Add()->SetText("&A");
    for (const char* each : {"one", "two"}) list.Items()->Add(each);
    if (event == "OnGetText" || event == "OnSetText" || event == "OnSort") list.SetRowCount(2);
    if (event == "OnSetText")
      list.OnGetText = [](TObject*, int, int, std::string& text) { text = "?"; };
  }
  TWinControl* Window() const { return dynamic_cast<TWinControl*>(Control); }
  void Tell(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    if (TWinControl* window = Window()) {
      ::SendMessageW(window->Handle(), message, wParam, lParam);
    } else {
      constexpr int inside = 10;
      ::SendMessageW(Panel->Handle(), message, wParam,
                     MAKELPARAM(Control->Left() + inside, Control->Top() + inside));
    }
  }
  void Key(WORD key) const {
    if (!Window()) return;
    ::PostMessageW(Window()->Handle(), WM_KEYDOWN, key, 1);
    ::PostMessageW(Window()->Handle(), WM_KEYUP, key, 1);
  }

  /// What a header sizes and moves by.
  void Drag(TPoint from, TPoint to) const {
    if (!dynamic_cast<qel::TQELHeader*>(Control)) return;
    Tell(WM_MOUSEMOVE, 0, MAKELPARAM(from.X, from.Y));
    if (Whole()) Tell(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.X, from.Y));
    if (Whole()) Tell(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to.X, to.Y));
    if (Whole()) Tell(WM_LBUTTONUP, 0, MAKELPARAM(to.X, to.Y));
  }
  /// Types into the edit over a cell, which Enter ends.
  void EditIn(const TWinControl& list) const {
    for (int i = 0; i < list.ControlCount(); ++i) {
      auto* edit = dynamic_cast<TInplaceEdit*>(list.Controls(i));
      if (!edit) continue;
      ::SendMessageW(edit->Handle(), WM_CHAR, 'x', 1);
      if (Whole()) ::SendMessageW(edit->Handle(), WM_KEYDOWN, VK_RETURN, 1);
      return;
    }
  }

  std::vector<std::function<void()>> Acts() {
    constexpr LPARAM inside = MAKELPARAM(10, 10);
    return {
        [this] { Panel->Font()->SetSize(20); },
        [this] { Control->SetBounds(6, 6, 90, 40); },
        [this] { Panel->SetColor(clRed); },
        [this] { Panel->SetCtl3D(false); },
        [this] { Panel->SetShowHint(true); },
        [this] { Control->SetAlign(alTop); },
        [this] { Panel->SetWidth(150); },
        [this] { Panel->ScaleBy(3, 2); },
        [this] { Control->SetAlign(alNone); },
        [this] { Control->SetText("7"); },
        [this] { Other->SetFocus(); },
        [this] {
          if (Window()) Window()->SetFocus();
        },
        [this] { Key('A'); },
        [this] {
          Drag({50, 10}, {70, 10});
        },
        [this] {
          Drag({10, 10}, {80, 10});
        },
        [this] {
          auto* list = dynamic_cast<qel::TQELHeaderList*>(Control);
          if (!list) return;
          list->SetItemIndex(0);
          ::SendMessageW(list->Header()->Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(9, 9));
          if (Whole()) ::SendMessageW(list->Header()->Handle(), WM_LBUTTONUP, 0, MAKELPARAM(9, 9));
          if (Whole() && list->EditCell(0)) EditIn(*list);
        },
        [this] { Key(VK_DOWN); },
        [this] { Key(VK_SPACE); },
        [this] { Other->SetFocus(); },
        [this] { Tell(WM_MOUSEMOVE, 0, inside); },
        [this] { Tell(WM_LBUTTONDOWN, MK_LBUTTON, inside); },
        [this] { Tell(WM_LBUTTONUP, 0, inside); },
        [this] { Tell(WM_LBUTTONDBLCLK, MK_LBUTTON, inside); },
        [this] { Tell(WM_LBUTTONUP, 0, inside); },
        [this] {
          // A tree's window waits for the button's release, behind which an edit's menu would come.
          if (dynamic_cast<TCustomTreeView*>(Control) || dynamic_cast<TCustomListView*>(Control))
            ::PostMessageW(Window()->Handle(), WM_RBUTTONUP, 0, inside);
          Tell(WM_RBUTTONDOWN, MK_RBUTTON, inside);
        },
        [this] { Tell(WM_CANCELMODE); },
        [this] {
          if (Window()) Window()->SetFocus();
        },
        [this] { Panel->SetEnabled(false); },
        [this] { Panel->SetEnabled(true); },
        [this] {
          if (Window()) Window()->SetFocus();
        },
        [this] { Control->SetEnabled(false); },
        [this] { Control->SetEnabled(true); },
        [this] {
          if (Window()) Window()->SetFocus();
        },
        [this] { Control->SetVisible(false); },
        [this] { Control->SetVisible(true); },
        [this] {
          if (Window()) Window()->SetFocus();
        },
        [this] { Form->Hide(); },
        [this] { Form->Show(); },
        [this] { Control->Repaint(); },
        [this] {
          if (Window()) Window()->SetFocus();
        },
        [this] { Control->SetParent(Form); },
        [this] { delete Panel; },
    };
  }

  TVictim FVictim;
  std::optional<TWatch> FForm, FPanel, FOther, FControl;
};

/// A label that opens what it says is refused, and told so.
HINSTANCE WINAPI RefuseToOpen(HWND, LPCWSTR, LPCWSTR, LPCWSTR, LPCWSTR, INT) {
  return reinterpret_cast<HINSTANCE>(std::intptr_t{SE_ERR_ACCESSDENIED});
}

TEST(Handlers, MayFreeTheirSenderAndWhatIsAroundIt) {
  const TImportPatch shell("qel.dll", "ShellExecuteW", &RefuseToOpen);
  const TImportPatch host("qelhost.dll", DeleteName, &DeleteAndOverwrite);
  const TImportPatch package("qel.dll", DeleteName, &DeleteAndOverwrite);
  RegisterAll();
  RegisterStandardClasses();
  Application()->Initialize();
  std::string what;
  Application()->OnException = [&](TObject*, const std::exception& error) {
    if (typeid(error) == typeid(EAccessViolation)) ADD_FAILURE() << what << ": " << error.what();
  };
  int freed = 0;
  for (const TClass* each : RegisteredClasses()) {
    if (!each->InheritsFrom(TControl::Class()) || each->InheritsFrom(TCustomForm::Class()))
      continue;
    if (!each->Maker().Component || each->Name() == "TTabSheet") continue;
    // They show the machine's folders, in the windows of a tree view and a list view.
    if (each->InheritsFrom(qel::TQELExplorerTree::Class())) continue;
    if (each->InheritsFrom(qel::TQELExplorerView::Class())) continue;
    for (const TPropInfo* event : each->Published()) {
      if (!event->IsEvent()) continue;
      // The system's edit controls work on behind these notices, with what the window had.
      const bool worksOn = event->Name == "OnChange" || event->Name == "OnSelectionChange";
      if (worksOn && each->InheritsFrom(TCustomEdit::Class())) continue;
      for (const TVictim victim : Victims) {
        what = Concat(each->Name(), ".", event->Name, " ", std::to_string(int(victim)));
        TScene scene(*each, event->Name, victim);
        if (!scene.Bound) break;
        try {
          scene.Play();
        } catch (const EAccessViolation& error) {
          ADD_FAILURE() << what << ": " << error.what();
        }
        freed += scene.Freed ? 1 : 0;
        // What these acts never bring about is the same for each victim.
        if (!scene.Freed) break;
      }
    }
  }
  EXPECT_GT(freed, 450);
}

}  // namespace
