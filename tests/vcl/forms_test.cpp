// Forms: showing and closing, focus and keys, modal forms, form files.
#include <gmock/gmock.h>

#include "tests/support/texts.h"
#include "tests/vcl/testinput.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

using namespace testinput;
using TLog = std::vector<std::string>;

/// A window that takes the focus and tells the log of it.
class TField : public TCustomControl {
 public:
  TField(TForm* form, TWinControl* parent, const std::string& name, TLog* log)
      : TCustomControl(form) {
    SetName(name);
    SetParent(parent);
    SetBounds(0, 0, 40, 20);
    SetTabStop(true);
    if (!log) return;
    OnEnter = [log, name](TObject*) { log->push_back("enter " + name); };
    OnExit = [log, name](TObject*) { log->push_back("exit " + name); };
  }
};

class Forms : public ::testing::Test {
 protected:
  Forms() : Form(nullptr) {
    Form.SetName("Form");
    Form.SetBounds(100, 100, 300, 200);
  }
  void ShowIt() {
    Form.Show();
    ASSERT_TRUE(PumpUntil([&] { return Form.Active(); }));
  }
  TNotifyEvent Logs(const std::string& text) {
    return [this, text](TObject*) { Log.push_back(text); };
  }
  TLog Log;
  TForm Form;
};

// Showing.

TEST_F(Forms, ANewFormIsHiddenAndTellsOfItsComingAndGoing) {
  EXPECT_FALSE(Form.Visible());
  Form.OnShow = Logs("show");
  Form.OnActivate = Logs("activate");
  Form.OnHide = Logs("hide");
  ShowIt();
  EXPECT_TRUE(::IsWindowVisible(Form.Handle()));
  EXPECT_EQ(Screen()->ActiveForm(), &Form);
  Form.SetBorderStyle(bsDialog);  // Another window, which is no news for handlers.
  EXPECT_TRUE(::IsWindowVisible(Form.Handle()));
  EXPECT_TRUE(::GetWindowLongW(Form.Handle(), GWL_EXSTYLE) & WS_EX_DLGMODALFRAME);
  EXPECT_EQ(Log, (TLog{"show", "activate"}));
  Form.Hide();
  EXPECT_FALSE(::IsWindowVisible(Form.Handle()));
  EXPECT_EQ(Log, (TLog{"show", "activate", "hide"}));
}

TEST_F(Forms, StylesOfTheWindowFollowBorderAndIcons) {
  const std::tuple<TBorderStyle, LONG, LONG> cases[] = {
      {bsNone, static_cast<LONG>(WS_POPUP), WS_DLGFRAME | WS_BORDER},
      {bsSingle, WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, WS_THICKFRAME},
      {bsSizeable, WS_CAPTION | WS_THICKFRAME | WS_MAXIMIZEBOX, 0},
      {bsDialog, WS_CAPTION | WS_SYSMENU, WS_THICKFRAME | WS_MINIMIZEBOX},
      {bsToolWindow, WS_CAPTION, WS_THICKFRAME | WS_MAXIMIZEBOX},
      {bsSizeToolWin, WS_CAPTION | WS_THICKFRAME, WS_MINIMIZEBOX},
  };
  for (const auto& [style, has, hasNot] : cases) {
    Form.SetBorderStyle(style);
    EXPECT_EQ(::GetWindowLongW(Form.Handle(), GWL_STYLE) & (has | hasNot), has) << style;
    TForm form(nullptr);
    form.SetBorderStyle(style);
    form.SetClientWidth(250);
    form.SetClientHeight(120);
    EXPECT_EQ(form.ClientRect(), Rect(0, 0, 250, 120));
    form.HandleNeeded();
    EXPECT_EQ(form.ClientRect(), Rect(0, 0, 250, 120)) << style;
  }
}

TEST_F(Forms, ScreenCenterPlacesTheFormOnce) {
  Form.SetPosition(poScreenCenter);
  ShowIt();
  const TRect area = Screen()->WorkAreaRect();
  EXPECT_NEAR(Form.Left() + Form.Width() / 2, (area.Left + area.Right) / 2, 1);
  EXPECT_NEAR(Form.Top() + Form.Height() / 2, (area.Top + area.Bottom) / 2, 1);
  Form.Hide();
  Form.SetLeft(7);
  Form.Show();
  EXPECT_EQ(Form.Left(), 7);
}

TEST_F(Forms, MaximizedFillsTheScreenAndNormalBringsTheSizeBack) {
  Form.SetWindowState(wsMaximized);
  ShowIt();
  EXPECT_TRUE(::IsZoomed(Form.Handle()));
  EXPECT_GE(Form.Width(), Screen()->WorkAreaRect().Width());
  Form.SetWindowState(wsNormal);
  EXPECT_EQ(Form.Width(), 300);
  ::ShowWindow(Form.Handle(), SW_MAXIMIZE);  // As the user does it.
  EXPECT_EQ(Form.WindowState(), wsMaximized);
}

// Focus.

class Focus : public Forms {
 protected:
  Focus()
      : Panel(&Form, &Form, "Panel", &Log),
        First(&Form, &Form, "First", &Log),
        Inner(&Form, &Panel, "Inner", &Log),
        Last(&Form, &Form, "Last", &Log) {
    Panel.SetTabStop(false);
    Panel.SetBounds(0, 100, 100, 50);
    Last.SetLeft(50);
  }
  void ExpectFocus(const TWinControl& control) {
    EXPECT_TRUE(PumpUntil([&] { return Form.ActiveControl() == &control && control.Focused(); }))
        << control.Name() << " has not the focus";
  }
  TField Panel, First, Inner, Last;
};

TEST_F(Focus, EntersAndLeavesAlongTheWay) {
  Form.SetActiveControl(&First);
  ShowIt();
  ExpectFocus(First);
  Inner.SetFocus();
  Last.SetFocus();
  EXPECT_EQ(Log, (TLog{"enter First", "exit First", "enter Panel", "enter Inner", "exit Inner",
                       "exit Panel", "enter Last"}));
  EXPECT_EQ(Screen()->ActiveControl(), &Last);
}

TEST_F(Focus, TabGoesRoundInTabOrder) {
  ShowIt();
  ExpectFocus(Inner);  // The first in tab order, inside the panel.
  for (const TField* next : {&First, &Last, &Inner}) {
    TypeKey(VK_TAB);
    ExpectFocus(*next);
  }
  TypeKey(VK_TAB, {VK_SHIFT});
  ExpectFocus(Last);
  TypeKey(VK_LEFT);
  ExpectFocus(First);
}

TEST_F(Focus, AHandlerThatMovesTheFocusHasTheLastWord) {
  Form.SetActiveControl(&First);
  ShowIt();
  First.OnExit = [&](TObject*) {
    First.OnExit = nullptr;
    First.SetFocus();
  };
  Log.clear();
  Last.SetFocus();
  ExpectFocus(First);
  for (const std::string& line : Log) EXPECT_EQ(line.find("Last"), std::string::npos) << line;
}

TEST_F(Focus, WhatCannotHaveItIsRefused) {
  TForm other(nullptr);
  TField foreign(&other, &other, "Foreign", nullptr);
  ShowIt();
  EXPECT_THROW(Form.SetActiveControl(&foreign), EInvalidOperation);
  Last.SetEnabled(false);
  EXPECT_THROW(Form.SetActiveControl(&Last), EInvalidOperation);
  EXPECT_THROW(Last.SetFocus(), EInvalidOperation);
}

TEST_F(Focus, AFreedControlIsForgotten) {
  auto* passing = new TField(&Form, &Form, "Passing", nullptr);
  Form.SetActiveControl(passing);
  ShowIt();
  ExpectFocus(*passing);
  delete passing;
  EXPECT_EQ(Form.ActiveControl(), nullptr);
  First.SetFocus();
  ExpectFocus(First);
}

TEST_F(Focus, AControlThatIsHiddenOrDisabledGivesItUp) {
  Form.SetActiveControl(&Inner);
  ShowIt();
  ExpectFocus(Inner);
  Log.clear();
  Panel.Hide();
  EXPECT_EQ(Form.ActiveControl(), nullptr);
  EXPECT_TRUE(Form.Focused());
  EXPECT_EQ(Log, (TLog{"exit Inner", "exit Panel"}));
  First.SetFocus();
  First.SetEnabled(false);
  EXPECT_TRUE(Form.Focused());
}

TEST_F(Focus, KeyPreviewGivesTheFormTheKeyFirst) {
  Form.SetActiveControl(&First);
  ShowIt();
  First.OnKeyDown = [&](TObject*, std::uint16_t&, TShiftState) { Log.push_back("control"); };
  Form.OnKeyDown = [&](TObject*, std::uint16_t& key, TShiftState shift) {
    Log.push_back(shift.Has(ssCtrl) ? "form with Ctrl" : "form");
    if (key == 'B') key = 0;
  };
  Form.SetKeyPreview(true);
  Log.clear();
  TypeKey('A');
  TypeKey('B');
  EXPECT_TRUE(PumpUntil([&] { return Log.size() >= 3; }));
  EXPECT_EQ(Log, (TLog{"form", "control", "form"}));
}

// Closing.

TEST_F(Forms, CloseAsksAndHides) {
  ShowIt();
  bool may = false;
  Form.OnCloseQuery = [&](TObject*, bool& canClose) { canClose = may; };
  Form.OnClose = [&](TObject*, TCloseAction& action) {
    Log.push_back(action == caHide ? "close" : "other");
  };
  ::SendMessageW(Form.Handle(), WM_CLOSE, 0, 0);
  EXPECT_TRUE(Form.Visible());
  EXPECT_TRUE(Log.empty());
  may = true;
  ::SendMessageW(Form.Handle(), WM_CLOSE, 0, 0);
  EXPECT_FALSE(Form.Visible());
  EXPECT_EQ(Log, TLog{"close"});
}

TEST_F(Forms, CaFreeFreesTheFormWholeAfterTheMessage) {
  auto* passing = new TForm(nullptr);
  TWatch watch(passing);
  passing->OnClose = [](TObject*, TCloseAction& action) { action = caFree; };
  passing->OnHide = Logs("hide");
  passing->OnDestroy = [&](TObject* sender) {
    Log.push_back(static_cast<TForm*>(sender)->Caption());
  };
  passing->SetCaption("whole");
  passing->Show();
  passing->Close();
  EXPECT_FALSE(watch.Gone());
  EXPECT_TRUE(PumpUntil([&] { return watch.Gone(); }));
  EXPECT_EQ(Log, (TLog{"hide", "whole"}));
}

TEST_F(Forms, ReleaseTwiceFreesOnceAndAnotherEndMayComeFirst) {
  auto* passing = new TForm(nullptr);
  TWatch watch(passing);
  passing->Release();
  passing->Release();
  EXPECT_TRUE(PumpUntil([&] { return watch.Gone(); }));
  auto* other = new TForm(nullptr);
  other->Release();
  delete other;
  Pump();
}

// Modal forms.

TEST_F(Forms, AModalFormDisablesTheOthersAndAnswers) {
  ShowIt();
  TForm modal(nullptr);
  modal.OnShow = [&](TObject*) {
    EXPECT_FALSE(::IsWindowEnabled(Form.Handle()));
    EXPECT_TRUE(modal.Modal());
    modal.SetModalResult(mrYes);
  };
  EXPECT_EQ(modal.ShowModal(), mrYes);
  EXPECT_TRUE(::IsWindowEnabled(Form.Handle()));
  EXPECT_FALSE(modal.Visible());
  EXPECT_TRUE(PumpUntil([&] { return Form.Active(); }));
  auto* freed = new TForm(nullptr);
  freed->OnShow = [&](TObject*) { freed->Release(); };
  EXPECT_EQ(freed->ShowModal(), mrCancel);
  EXPECT_TRUE(::IsWindowEnabled(Form.Handle()));
}

TEST_F(Forms, ModalFormsNestAndTheirErrorsDoNotEndThem) {
  std::vector<std::string> errors;
  Application()->OnException = [&](TObject*, const std::exception& e) {
    errors.push_back(e.what());
  };
  TForm outer(nullptr);
  TForm inner(nullptr);
  inner.OnShow = [&](TObject*) { ::PostMessageW(inner.Handle(), WM_CLOSE, 0, 0); };
  outer.OnActivate = [&](TObject*) {
    outer.OnActivate = nullptr;
    EXPECT_EQ(inner.ShowModal(), mrCancel);
    outer.SetModalResult(mrOk);
    throw Exception("from a handler");
  };
  EXPECT_EQ(outer.ShowModal(), mrOk);
  Application()->OnException = nullptr;
  EXPECT_EQ(errors, std::vector<std::string>{"from a handler"});
}

TEST_F(Forms, ARefusedCloseKeepsTheModalFormAndTakesItsResultBack) {
  TForm modal(nullptr);
  int asked = 0;
  modal.OnCloseQuery = [&](TObject*, bool& canClose) {
    canClose = ++asked == 2;
    if (!canClose) ::PostMessageW(modal.Handle(), WM_CLOSE, 0, 0);
  };
  modal.OnShow = [&](TObject*) { modal.SetModalResult(mrOk); };
  EXPECT_EQ(modal.ShowModal(), mrCancel);
  EXPECT_EQ(asked, 2);
}

TEST_F(Forms, WhatCannotBeModalIsRefused) {
  EXPECT_EQ(Form.Modal(), false);
  Form.SetEnabled(false);
  EXPECT_THROW(Form.ShowModal(), EInvalidOperation);
  Form.SetEnabled(true);
  Form.Show();
  EXPECT_THROW(Form.ShowModal(), EInvalidOperation);
  EXPECT_FALSE(Form.Modal());
}

// Form files.

class TFileForm : public TForm {
 public:
  /// Reads the form from the text.
  explicit TFileForm(const std::string& text) : TForm(nullptr) {
    RegisterStandardClasses();
    ReadForm(text, this);
  }
  static const TClass& Class() {
    static const TClass info =
        Describe<TFileForm, TForm>("TFileForm", "forms_test",
                                   {
                                       Field<&TFileForm::MainMenu1>("MainMenu1"),
                                       Field<&TFileForm::Exit1>("Exit1"),
                                       Method<&TFileForm::FormShow>("FormShow"),
                                       Method<&TFileForm::Exit1Click>("Exit1Click"),
                                   });
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  void FormShow(TObject*) { ++Shown; }
  void Exit1Click(TObject*) { ++Exits; }
  TMainMenu* MainMenu1 = nullptr;
  TMenuItem* Exit1 = nullptr;
  int Shown = 0;
  int Exits = 0;
};

constexpr const char* MenuForm = R"(object FileForm: TFileForm
  Left = 40 Top = 60 BorderStyle = bsSingle Caption = 'From a file' Menu = MainMenu1
  ClientHeight = 150 ClientWidth = 280 Visible = True OnShow = FormShow
  object MainMenu1: TMainMenu
    object File1: TMenuItem Caption = '&File'
      object Exit1: TMenuItem Caption = 'E&xit' ShortCut = 32856 OnClick = Exit1Click end
    end
  end
end
)";

TEST_F(Forms, AFormFileMakesTheFormAndShowsItWhole) {
  TFileForm form(MenuForm);
  EXPECT_EQ(form.Caption(), "From a file");
  EXPECT_EQ(form.Shown, 1);
  EXPECT_EQ(form.ClientRect(), Rect(0, 0, 280, 150));
  ASSERT_NE(form.Exit1, nullptr);
  EXPECT_EQ(form.Menu(), form.MainMenu1);
  EXPECT_EQ(::GetMenu(form.Handle()), form.MainMenu1->Handle());
  ASSERT_TRUE(PumpUntil([&] { return form.Active(); }));
  TypeKey('X', {VK_CONTROL});
  EXPECT_FALSE(PumpUntil([&] { return form.Exits > 0; }, 50));
  TypeKey('X', {VK_MENU});
  EXPECT_TRUE(PumpUntil([&] { return form.Exits == 1; }));
}

TEST_F(Forms, WhatIsAlignedFitsAFormWithAMenu) {
  TFileForm form(MenuForm);
  TPanel* const bar = new TPanel(&form);
  bar->SetParent(&form);
  bar->SetAlign(alBottom);
  const auto bottom = [&] { return bar->Top() + bar->Height(); };
  EXPECT_EQ(bottom(), 150);
  form.SetMenu(nullptr);
  RECT client;
  ::GetClientRect(form.Handle(), &client);
  EXPECT_GT(client.bottom, 150);
  EXPECT_EQ(bottom(), client.bottom);
  form.SetMenu(form.MainMenu1);
  EXPECT_EQ(bottom(), 150);
}

TEST_F(Forms, AFormThatCouldNotBeReadWorksOn) {
  TForm form(nullptr);
  auto* field = new TField(&form, &form, "Field", nullptr);
  RegisterStandardClasses();
  EXPECT_THROW(ReadForm("object F: TForm object Menu1: TMainMenu Nothing = 5 end end", &form),
               EReadError);
  EXPECT_EQ(form.ControlCount(), 1);
  field->SetAlign(alClient);
  EXPECT_EQ(field->Width(), form.ClientWidth());
  form.Show();
  EXPECT_TRUE(::IsWindowVisible(form.Handle()));
}

TEST_F(Forms, WhatDoesNotFollowItsParentHasItsOwnDefaultsWhenItIsRead) {
  TFileForm form(
      "object FileForm: TFileForm Color = clRed Font.Height = -30"
      " object Own: TLabel ParentColor = False ParentFont = False end"
      " object Follower: TLabel end end");
  const auto* own = dynamic_cast<TLabel*>(form.FindComponent("Own"));
  const auto* follower = dynamic_cast<TLabel*>(form.FindComponent("Follower"));
  EXPECT_EQ(own->Color(), clWindow);
  EXPECT_EQ(own->Font()->Height(), TFont().Height());
  EXPECT_EQ(follower->Color(), clRed);
  EXPECT_EQ(follower->Font()->Height(), -30);
}

// Forms from the program's resources.

TLog resourceLog;

class TResourceForm : public TForm {
 public:
  explicit TResourceForm(TComponent* owner) : TForm(owner) { LoadForm(); }
  static const TClass& Class() {
    static const TClass info =
        Describe<TResourceForm, TForm>("TResourceForm", "forms_test",
                                       {
                                           Field<&TResourceForm::Item1>("Item1"),
                                           Method<&TResourceForm::FormCreate>("FormCreate"),
                                           Method<&TResourceForm::FormDestroy>("FormDestroy"),
                                           Method<&TResourceForm::FormShow>("FormShow"),
                                       });
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  void FormCreate(TObject*) { resourceLog.push_back("create " + Item1->Caption()); }
  void FormShow(TObject*) { resourceLog.push_back("show"); }
  void FormDestroy(TObject*) { resourceLog.push_back("destroy " + Item1->Caption()); }
  TMenuItem* Item1 = nullptr;
};

TEST(ResourceForms, AreMadeCreatedShownAndDestroyedWhole) {
  RegisterStandardClasses();
  resourceLog.clear();
  auto* form = new TResourceForm(nullptr);
  EXPECT_EQ(form->Caption(), "Straight from the program");
  EXPECT_TRUE(form->Visible());
  EXPECT_EQ(form->ClientRect(), Rect(0, 0, 210, 90));
  form->Free();
  EXPECT_EQ(resourceLog, (TLog{"create Item", "show", "destroy Item"}));
}

/// Its class forgets that it has a table.
class TUndescribedForm : public TForm {
 public:
  explicit TUndescribedForm(TComponent* owner) : TForm(owner) { LoadForm(); }
  static const TClass& Class() {
    static const TClass info =
        Describe<TUndescribedForm, TForm>("TUndescribedForm", "forms_test", {});
    return info;
  }
};

namespace lacking {

/// Lists a component that its form file does not have.
class TResourceForm : public TForm {
 public:
  explicit TResourceForm(TComponent* owner) : TForm(owner) { LoadForm(); }
  static const TClass& Class() {
    static const TClass info =
        Describe<TResourceForm, TForm>("lacking::TResourceForm", "forms_test",
                                       {
                                           Field<&TResourceForm::Item1>("Item1"),
                                           Field<&TResourceForm::Item7>("Item7"),
                                           Method<&TResourceForm::Ignore>("FormCreate"),
                                           Method<&TResourceForm::Ignore>("FormDestroy"),
                                           Method<&TResourceForm::Ignore>("FormShow"),
                                       });
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  void Ignore(TObject*) {}
  TMenuItem* Item1 = nullptr;
  TMenuItem* Item7 = nullptr;
};

}  // namespace lacking

namespace hiding {

class TResourceForm : public TForm {
 public:
  explicit TResourceForm(TComponent* owner) : TForm(owner) { LoadForm(); }
  static const TClass& Class() {
    static const TClass info = Describe<TResourceForm, TForm>(
        "hiding::TResourceForm", "forms_test", {Field<&TResourceForm::Caption>("Caption")});
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  TMenuItem* Caption = nullptr;
};

}  // namespace hiding

TEST(ResourceForms, TellWhatTheirClassLacks) {
  RegisterStandardClasses();
  const int count = Screen()->FormCount();
  EXPECT_THAT([] { TUndescribedForm form(nullptr); },
              testing::ThrowsMessage<EInvalidOperation>(
                  testing::AllOf(testing::HasSubstr("TUndescribedForm has no ClassType"),
                                 testing::HasSubstr("vcl::TForm"))));
  EXPECT_THAT([] { lacking::TResourceForm form(nullptr); },
              testing::ThrowsMessage<EReadError>(
                  "The form file of lacking::TResourceForm holds no component for the field Item7: "
                  "vcl::TMenuItem"));
  EXPECT_THAT([] { hiding::TResourceForm form(nullptr); },
              testing::ThrowsMessage<EPropertyError>(
                  "The field Caption of hiding::TResourceForm hides its property Caption"));
  EXPECT_EQ(Screen()->FormCount(), count);
}

class TLostForm : public TForm {
 public:
  explicit TLostForm(TComponent* owner) : TForm(owner) { LoadForm(); }
  static const TClass& Class() {
    static const TClass info = Describe<TLostForm, TForm>("TLostForm", "forms_test", {});
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
};

TEST(ResourceForms, WithoutAResourceThereIsNoForm) {
  const int count = Screen()->FormCount();
  TComponent owner(nullptr);
  EXPECT_THAT([&] { new TLostForm(&owner); },
              testing::ThrowsMessage<EResNotFound>("Resource TLOSTFORM not found"));
  EXPECT_EQ(Screen()->FormCount(), count);
  EXPECT_EQ(owner.ComponentCount(), 0);
}

}  // namespace
}  // namespace vcl
