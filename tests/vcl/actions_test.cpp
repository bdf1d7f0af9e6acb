// Actions: what their clients show, what executes and updates them, and the ready-made ones.
#include <gmock/gmock.h>

#include <memory>

#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"

namespace vcl {
namespace {

using testing::HasSubstr;
using testing::Not;
using testinput::PumpUntil;

class Actions : public TStandardForm {
 protected:
  TAction* Add(const char* caption, TComponent* owner = nullptr) {
    auto* action = new TAction(owner ? owner : &Form);
    action->SetCaption(caption);
    action->SetActionList(List);
    action->OnExecute = [this, caption](TObject*) { Log += Concat(caption, " "); };
    return action;
  }
  /// One turn of the program's idle work.
  static void Idle() {
    bool idle = false;
    Application()->OnIdle = [&](TObject*, bool& done) {
      idle = true;
      done = false;
    };
    while (!idle) Application()->HandleMessage();
    Application()->OnIdle = nullptr;
  }

  TActionList* List = new TActionList(&Form);
  std::string Log;
};

TEST_F(Actions, ClientsFollowEachValueUntilTheyHaveTheirOwn) {
  TAction* action = Add("&Do");
  action->SetHint("Does");
  auto* button = Make<TButton>(10, 10);
  auto* item = new TMenuItem(&Form);
  button->SetAction(action);
  item->SetAction(action);
  EXPECT_EQ(button->Caption(), "&Do");
  EXPECT_EQ(button->Hint(), "Does");
  EXPECT_EQ(item->Caption(), "&Do");
  action->SetEnabled(false);
  action->SetVisible(false);
  action->SetShortCut(ShortCut('D', {ssCtrl}));
  action->SetChecked(true);
  EXPECT_FALSE(button->Enabled());
  EXPECT_FALSE(button->Visible());
  EXPECT_TRUE(item->Checked());
  EXPECT_EQ(item->ShortCut(), ShortCut('D', {ssCtrl}));
  button->SetCaption("Own");
  action->SetCaption("Other");
  EXPECT_EQ(button->Caption(), "Own");
  EXPECT_EQ(item->Caption(), "Other");
  action->SetCaption("Own");
  action->SetCaption("Followed again");
  EXPECT_EQ(button->Caption(), "Followed again");
  EXPECT_EQ(action->ClientCount(), 2);
  EXPECT_EQ(action->Clients(1), item);
  EXPECT_THROW(action->Clients(2), EListError);
  delete button;
  EXPECT_EQ(action->ClientCount(), 1);
  delete action;
  EXPECT_EQ(item->Action(), nullptr);
  EXPECT_EQ(item->Caption(), "Followed again");
}

TEST_F(Actions, AClickExecutesTheActionUnlessTheClientHasAHandler) {
  TAction* action = Add("A");
  auto* button = Make<TButton>(10, 10);
  auto* speed = Make<TSpeedButton>(10, 50);
  TMenuItem item(nullptr);
  button->SetAction(action);
  speed->SetAction(action);
  item.SetAction(action);
  ShowForm();
  Click(*button);
  Click(*speed);
  item.Click();
  EXPECT_EQ(Log, "A A A ");
  button->OnClick = [this](TObject*) { Log += "own"; };
  Click(*button);
  EXPECT_EQ(Log, "A A A own");
  Log.clear();
  button->OnClick = nullptr;
  // The list's handler comes first, and may be the only one.
  bool takes = false;
  List->OnExecute = [&](TBasicAction*, bool& handled) {
    Log += "list ";
    handled = takes;
  };
  button->Click();
  takes = true;
  button->Click();
  EXPECT_EQ(Log, "list A list ");
  Log.clear();
  List->SetState(asSuspended);
  EXPECT_FALSE(action->Execute());
  List->SetState(asNormal);
  action->SetEnabled(false);
  EXPECT_FALSE(action->Execute());
  List->SetState(asSuspendedEnabled);
  EXPECT_TRUE(button->Enabled());
  EXPECT_FALSE(action->Execute());
  List->SetState(asNormal);
  EXPECT_FALSE(button->Enabled());
  EXPECT_EQ(Log, "");
}

TEST_F(Actions, CheckedOnesOfAGroupExcludeEachOtherWithTheirClients) {
  TAction* left = Add("Left");
  TAction* right = Add("Right");
  TAction* bold = Add("Bold");
  for (TAction* each : {left, right}) each->SetGroupIndex(1);
  for (TAction* each : {left, right, bold}) each->SetAutoCheck(true);
  auto* leftRadio = Make<TRadioButton>(10, 10);
  auto* rightRadio = Make<TRadioButton>(10, 40);
  auto* boldBox = Make<TCheckBox>(10, 70);
  auto* leftSpeed = Make<TSpeedButton>(200, 10);
  auto* rightSpeed = Make<TSpeedButton>(200, 40);
  leftRadio->SetAction(left);
  rightRadio->SetAction(right);
  boldBox->SetAction(bold);
  leftSpeed->SetAction(left);
  rightSpeed->SetAction(right);
  const auto state = [&] {
    std::string text;
    for (const bool each : {left->Checked(), leftRadio->Checked(), leftSpeed->Down(),
                            right->Checked(), rightRadio->Checked(), rightSpeed->Down()}) {
      text += each ? '1' : '0';
    }
    return text;
  };
  ShowForm();
  left->Execute();
  EXPECT_EQ(state(), "111000");
  Click(*rightSpeed);
  EXPECT_EQ(state(), "000111");
  Click(*leftRadio);
  EXPECT_EQ(state(), "111000");
  left->Execute();
  EXPECT_EQ(state(), "111000") << "one of a group stays checked";
  Log.clear();
  Click(*boldBox);
  EXPECT_TRUE(bold->Checked());
  bold->Execute();
  EXPECT_FALSE(boldBox->Checked());
  bold->SetChecked(true);
  EXPECT_TRUE(boldBox->Checked());
  EXPECT_EQ(Log, "Bold Bold ") << "a client that follows is not clicked";
}

TEST_F(Actions, AButtonShowsThePictureOfItsAction) {
  TImageList images(nullptr);
  TBitmap strip;
  strip.SetWidth(32);
  strip.SetHeight(16);
  strip.Canvas()->Brush()->SetColor(clRed);
  strip.Canvas()->FillRect(Rect(0, 0, 16, 16));
  strip.Canvas()->Brush()->SetColor(clBlue);
  strip.Canvas()->FillRect(Rect(16, 0, 32, 16));
  images.Add(&strip, nullptr);
  TAction* action = Add("");
  action->SetImageIndex(0);
  auto* speed = Make<TSpeedButton>(10, 10);
  auto* bit = Make<TBitBtn>(10, 50);
  speed->SetAction(action);
  bit->SetAction(action);
  EXPECT_TRUE(speed->Glyph()->Empty());
  List->SetImages(&images);
  ShowForm();
  EXPECT_EQ(Find(clRed).TopLeft(), TPoint(14, 13));
  EXPECT_THAT(FormText(&Form), Not(HasSubstr("Glyph")));
  action->SetImageIndex(1);
  EXPECT_TRUE(Find(clRed).Empty());
  EXPECT_FALSE(Find(clBlue).Empty());
  TBitmap own;
  own.Assign(&strip);
  own.SetWidth(16);
  own.Canvas()->FillRect(Rect(0, 15, 16, 16));
  speed->SetGlyph(&own);
  action->SetImageIndex(-1);
  EXPECT_TRUE(Find(clBlue).Empty());
  EXPECT_FALSE(Find(clRed).Empty()) << "its own picture stays";
}

TEST_F(Actions, AtMoreDotsPerInchAButtonShowsThePictureMadeForThem) {
  TImageList images(nullptr);
  TImageList larger(nullptr, 24, 24);
  const auto fill = [](TImageList& list, TColor color) {
    TBitmap picture;
    picture.Canvas()->Brush()->SetColor(color);
    picture.SetSize(list.Width(), list.Height());
    list.Add(&picture, nullptr);
  };
  fill(images, clRed);
  fill(larger, clBlue);
  TAction* action = Add("");
  action->SetImageIndex(0);
  auto* speed = Make<TSpeedButton>(10, 10);
  speed->SetAction(action);
  List->SetImages(&images);
  ShowForm();
  Form.ScaleForPPI(144);
  EXPECT_EQ(Find(clRed).Size(), (TSize{24, 24}));
  images.SetLarger(&larger);
  List->SetImages(nullptr);
  List->SetImages(&images);
  EXPECT_EQ(Find(clBlue).Size(), (TSize{24, 24}));
  Form.ScaleForPPI(96);
  EXPECT_EQ(Find(clRed).Size(), (TSize{16, 16}));
  EXPECT_TRUE(Find(clBlue).Empty());
}

constexpr const char* File =
    "object Form: TForm\n"
    "  Left = 0\n"
    "  Top = 0\n"
    "  Caption = ''\n"
    "  ClientHeight = 100\n"
    "  ClientWidth = 200\n"
    "  object Button: TButton\n"
    "    Left = 10\n"
    "    Top = 10\n"
    "    Width = 75\n"
    "    Height = 25\n"
    "    Action = OpenAction\n"
    "    TabOrder = 0\n"
    "  end\n"
    "  object Box: TCheckBox\n"
    "    Left = 10\n"
    "    Top = 40\n"
    "    Width = 97\n"
    "    Height = 17\n"
    "    Action = OpenAction\n"
    "    Caption = 'Own'\n"
    "    TabOrder = 1\n"
    "  end\n"
    "  object Popup: TPopupMenu\n"
    "    Images = Pictures\n"
    "    Left = 8\n"
    "    Top = 8\n"
    "    object OpenItem: TMenuItem\n"
    "      Action = OpenAction\n"
    "      ShortCut = 114\n"
    "    end\n"
    "    object OwnItem: TMenuItem\n"
    "      Action = OpenAction\n"
    "      ImageIndex = 4\n"
    "    end\n"
    "  end\n"
    "  object Pictures: TImageList\n"
    "    Larger = LargePictures\n"
    "  end\n"
    "  object LargePictures: TImageList\n"
    "    Height = 32\n"
    "    Width = 32\n"
    "  end\n"
    "  object Actions: TActionList\n"
    "    Left = 40\n"
    "    Top = 8\n"
    "    object OpenAction: TAction\n"
    "      Category = 'File'\n"
    "      Caption = '&Open'\n"
    "      GroupIndex = 2\n"
    "      Checked = True\n"
    "      Enabled = False\n"
    "      Hint = 'Opens'\n"
    "      ImageIndex = 2\n"
    "      ShortCut = 16463\n"
    "    end\n"
    "    object CopyAction: TEditCopy\n"
    "      Caption = ''\n"
    "      Hint = 'Copies what is selected to the clipboard'\n"
    "      ShortCut = 16451\n"
    "    end\n"
    "  end\n"
    "end\n";

TEST_F(Actions, AFormFileHoldsWhatClientsHaveOfTheirOwn) {
  RegisterStandardClasses();
  TForm form(nullptr);
  ReadForm(File, &form);
  const auto* list = dynamic_cast<TActionList*>(form.FindComponent("Actions"));
  ASSERT_EQ(list->ActionCount(), 2);
  EXPECT_EQ(list->Actions(0)->Category(), "File");
  const auto* button = dynamic_cast<TButton*>(form.FindComponent("Button"));
  EXPECT_EQ(button->Caption(), "&Open");
  EXPECT_EQ(button->Hint(), "Opens");
  EXPECT_FALSE(button->Enabled());
  const auto* box = dynamic_cast<TCheckBox*>(form.FindComponent("Box"));
  EXPECT_EQ(box->Caption(), "Own");
  EXPECT_TRUE(box->Checked());
  const auto* item = dynamic_cast<TMenuItem*>(form.FindComponent("OpenItem"));
  EXPECT_EQ(item->ShortCut(), VK_F3);
  EXPECT_EQ(item->GroupIndex(), 2);
  EXPECT_EQ(item->ImageIndex(), 2);
  EXPECT_EQ(item->GetParentMenu()->Images()->Larger()->Width(), 32);
  EXPECT_EQ(FormText(&form), File);
  TAction stray(nullptr);
  EXPECT_THROW(stray.SetParentComponent(&form), EInvalidOperation);
}

TEST_F(Actions, WhatIsSeenIsUpdatedWhenTheProgramIdles) {
  int seen = 0, hidden = 0, opened = 0;
  TAction* shown = Add("Shown");
  shown->OnUpdate = [&](TObject*) {
    ++seen;
    shown->SetEnabled(seen > 1);
  };
  TAction* unseen = Add("Unseen");
  unseen->OnUpdate = [&](TObject*) { ++hidden; };
  TAction* inMenu = Add("InMenu");
  inMenu->OnUpdate = [&](TObject*) { ++opened; };
  auto* panel = Make<TPanel>(10, 10);
  auto* button = Make<TButton>(5, 5, panel);
  auto* second = Make<TButton>(5, 30, panel);
  button->SetAction(shown);
  second->SetAction(shown);
  auto* other = Make<TButton>(200, 10);
  other->SetAction(unseen);
  other->SetVisible(false);
  TPopupMenu menu(nullptr);
  auto* item = new TMenuItem(&menu);
  menu.Items()->Add(item);
  item->SetAction(inMenu);
  ShowForm();
  Idle();
  EXPECT_GE(seen, 1);
  Idle();
  EXPECT_TRUE(button->Enabled());
  const int before = seen;
  Idle();
  EXPECT_EQ(seen, before + 1) << "once for all its clients";
  EXPECT_EQ(hidden, 0);
  EXPECT_EQ(opened, 0);
  menu.HandleMessage({WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.Handle()), 0, 0});
  EXPECT_EQ(opened, 1);
  List->SetState(asSuspended);
  Idle();
  EXPECT_EQ(seen, before + 1);
}

TEST_F(Actions, ShortcutsComeBehindTheMenusAndBeforeTheControl) {
  TAction* save = Add("Save");
  save->SetShortCut(ShortCut('S', {ssCtrl}));
  auto* edit = Make<TEdit>(10, 10);
  int keys = 0;
  edit->OnKeyDown = [&](TObject*, std::uint16_t& key, TShiftState) { keys += key != VK_CONTROL; };
  ShowForm();
  edit->SetFocus();
  KeyWith(VK_CONTROL, 'S');
  EXPECT_TRUE(PumpUntil([&] { return Log == "Save "; }));
  EXPECT_EQ(keys, 0);
  save->OnUpdate = [&](TObject*) { save->SetEnabled(false); };
  KeyWith(VK_CONTROL, 'S');
  EXPECT_TRUE(PumpUntil([&] { return keys == 1; })) << "the action is updated before";
  TMainMenu bar(nullptr);
  auto* item = new TMenuItem(&bar);
  bar.Items()->Add(item);
  item->SetShortCut(ShortCut('S', {ssCtrl}));
  item->OnClick = [this](TObject*) { Log += "menu"; };
  Form.SetMenu(&bar);
  KeyWith(VK_CONTROL, 'S');
  EXPECT_TRUE(PumpUntil([&] { return Log == "Save menu"; }));
}

TEST_F(Actions, HandlersMayFreeWhateverTheyWorkFor) {
  const auto keyed = [&](TAction* action) {
    action->SetShortCut(ShortCut('K', {ssCtrl}));
    return action;
  };
  auto* edit = Make<TEdit>(10, 100);
  ShowForm();
  edit->SetFocus();
  // The client, the action and the list, on clicks, keys, updates and changes.
  auto* button = Make<TButton>(10, 10);
  button->SetAction(Add("client"));
  Add("client");
  dynamic_cast<TAction*>(button->Action())->OnExecute = [&](TObject*) { delete button; };
  Click(*button);
  EXPECT_EQ(List->Actions(0)->ClientCount(), 0);
  auto* other = Make<TButton>(10, 10);
  TAction* action = Add("action");
  other->SetAction(action);
  action->OnExecute = [&](TObject* sender) { delete sender; };
  Click(*other);
  EXPECT_EQ(other->Action(), nullptr);
  EXPECT_EQ(other->Caption(), "action");
  auto* updated = Add("updated");
  auto* second = Add("second");
  auto* third = Make<TButton>(100, 10);
  third->SetAction(second);
  other->SetAction(updated);
  updated->OnUpdate = [&](TObject* sender) {
    delete second;
    delete sender;
  };
  Idle();
  EXPECT_EQ(third->Action(), nullptr);
  keyed(Add("keyed"))->OnExecute = [&](TObject*) { delete std::exchange(List, nullptr); };
  const TWatch list(List);
  KeyWith(VK_CONTROL, 'K');
  EXPECT_TRUE(PumpUntil([&] { return list.Gone(); }));
  // A client that is told of a change frees the next one.
  List = new TActionList(&Form);
  TAction* change = Add("change");
  struct TFreeing : TButton {
    using TButton::TButton;
    TControl* Other = nullptr;
    void Dispatch(TMessage& message) override {
      TButton::Dispatch(message);
      if (message.Msg == CM_ENABLEDCHANGED) delete std::exchange(Other, nullptr);
    }
  };
  auto* freeing = new TFreeing(&Form);
  auto* freed = new TButton(&Form);
  freeing->SetAction(change);
  freed->SetAction(change);
  freeing->Other = freed;
  change->SetEnabled(false);
  EXPECT_EQ(change->ClientCount(), 1);
  freeing->Other = freeing;
  change->SetEnabled(true);
  EXPECT_EQ(change->ClientCount(), 0);
}

class ReadyActions : public Actions {
 protected:
  template <class T>
  T* Standard() {
    auto* action = new T(&Form);
    action->SetActionList(List);
    return action;
  }
};

TEST_F(ReadyActions, EditActionsWorkOnTheEditWithTheFocus) {
  auto* cut = Standard<TEditCut>();
  auto* copy = Standard<TEditCopy>();
  auto* paste = Standard<TEditPaste>();
  auto* all = Standard<TEditSelectAll>();
  auto* undo = Standard<TEditUndo>();
  auto* clear = Standard<TEditDelete>();
  auto* edit = Make<TEdit>(10, 10);
  auto* memo = Make<TMemo>(10, 50);
  auto* button = Make<TButton>(300, 10);
  edit->SetText("abc");
  Clipboard()->SetAsText("new");
  ShowForm();
  const auto enabled = [&] {
    std::string text;
    for (TCustomAction* each :
         std::initializer_list<TCustomAction*>{cut, copy, paste, all, undo, clear}) {
      each->Update();
      text += each->Enabled() ? '1' : '0';
    }
    return text;
  };
  edit->SetFocus();
  edit->SetSelLength(0);
  EXPECT_EQ(enabled(), "001100");
  KeyWith(VK_CONTROL, 'A');
  EXPECT_EQ(edit->SelText(), "abc");
  EXPECT_EQ(enabled(), "111101");
  edit->SetReadOnly(true);
  EXPECT_EQ(enabled(), "010100");
  edit->SetReadOnly(false);
  KeyWith(VK_CONTROL, 'X');
  EXPECT_EQ(edit->Text(), "");
  EXPECT_EQ(Clipboard()->AsText(), "abc");
  undo->Execute();
  EXPECT_EQ(edit->Text(), "abc");
  memo->SetFocus();
  KeyWith(VK_CONTROL, 'V');
  EXPECT_EQ(memo->Text(), "abc");
  all->Execute();
  clear->Execute();
  EXPECT_EQ(memo->Text(), "");
  EXPECT_EQ(Clipboard()->AsText(), "abc");
  button->SetFocus();
  EXPECT_EQ(enabled(), "000000");
  EXPECT_FALSE(copy->Execute());
  copy->OnExecute = [this](TObject*) { Log += "own"; };
  copy->SetEnabled(true);
  EXPECT_TRUE(copy->Execute());
  EXPECT_EQ(Log, "own");
}

TEST_F(ReadyActions, EditActionsWorkInsideAComboBox) {
  auto* cut = Standard<TEditCut>();
  auto* copy = Standard<TEditCopy>();
  auto* paste = Standard<TEditPaste>();
  auto* all = Standard<TEditSelectAll>();
  auto* undo = Standard<TEditUndo>();
  auto* clear = Standard<TEditDelete>();
  auto* combo = Make<TComboBox>(10, 10);
  auto* list = Make<TComboBox>(10, 50);
  list->SetStyle(csDropDownList);
  list->Items()->SetText("one\ntwo");
  list->SetItemIndex(0);
  combo->SetText("abc");
  Clipboard()->SetAsText("new");
  ShowForm();
  const auto enabled = [&] {
    std::string text;
    for (TCustomAction* each :
         std::initializer_list<TCustomAction*>{cut, copy, paste, all, undo, clear}) {
      each->Update();
      text += each->Enabled() ? '1' : '0';
    }
    return text;
  };
  combo->SetFocus();
  combo->Select(0, 0);
  EXPECT_EQ(enabled(), "001100");
  KeyWith(VK_CONTROL, 'A');
  EXPECT_EQ(combo->SelLength(), 3);
  EXPECT_EQ(enabled(), "111101");
  copy->Execute();
  EXPECT_EQ(Clipboard()->AsText(), "abc");
  Clipboard()->SetAsText("new");
  KeyWith(VK_CONTROL, 'V');
  EXPECT_EQ(combo->Text(), "new");
  EXPECT_EQ(enabled(), "001110");
  KeyWith(VK_CONTROL, 'Z');
  EXPECT_EQ(combo->Text(), "abc");
  combo->Select(0, 2);
  cut->Execute();
  EXPECT_EQ(combo->Text(), "c");
  EXPECT_EQ(Clipboard()->AsText(), "ab");
  all->Execute();
  clear->Execute();
  EXPECT_EQ(combo->Text(), "");
  EXPECT_EQ(Clipboard()->AsText(), "ab");
  list->SetFocus();
  EXPECT_EQ(enabled(), "000000") << "it has no edit";
}

TEST_F(ReadyActions, FileActionsAskByTheirDialogs) {
  struct TAnswer : TSaveDialog {
    using TSaveDialog::TSaveDialog;
    bool Accepts = true;
    bool Execute() override { return Accepts; }
  };
  auto* save = Standard<TFileSaveAs>();
  auto* open = Standard<TFileOpen>();
  auto dialog = std::make_unique<TAnswer>(nullptr);
  save->BeforeExecute = [this](TObject*) { Log += "before "; };
  save->OnAccept = [this](TObject*) { Log += "accept "; };
  save->OnCancel = [this](TObject*) { Log += "cancel "; };
  EXPECT_FALSE(save->Execute());
  save->SetDialog(dialog.get());
  open->SetDialog(dialog.get());
  EXPECT_TRUE(save->Execute());
  dialog->Accepts = false;
  EXPECT_TRUE(save->Execute());
  EXPECT_EQ(Log, "before accept before cancel ");
  save->BeforeExecute = [&](TObject*) { dialog.reset(); };
  EXPECT_TRUE(save->Execute());
  EXPECT_EQ(save->Dialog(), nullptr);
  EXPECT_FALSE(open->Execute());
  auto* help = Standard<THelpContents>();
  EXPECT_FALSE(help->Execute());
  help->SetFileName("c:\\nowhere\\none.htm");
  try {
    help->Execute();
    FAIL();
  } catch (const EInOutError& error) {
    EXPECT_THAT(error.what(), HasSubstr("none.htm"));
  }
}

TEST(WindowActions, WorkOnTheChildrenOfTheMainForm) {
  auto* main = Application()->CreateForm<TForm>();
  main->SetFormStyle(fsMDIForm);
  main->SetBounds(50, 60, 700, 500);
  main->Show();
  TWindowTileVertical tile(nullptr);
  TWindowMinimizeAll minimize(nullptr);
  TWindowClose close(nullptr);
  TFileExit exit(nullptr);
  tile.Update();
  EXPECT_FALSE(tile.Enabled());
  std::vector<TForm*> children;
  for (int i = 0; i < 2; ++i) {
    children.push_back(new TForm(main));
    children.back()->SetFormStyle(fsMDIChild);
    testinput::Pump();
  }
  EXPECT_TRUE(tile.Execute());
  EXPECT_EQ(children[0]->Top(), children[1]->Top());
  EXPECT_NE(children[0]->Left(), children[1]->Left());
  EXPECT_TRUE(minimize.Execute());
  for (const TForm* each : children) EXPECT_EQ(each->WindowState(), wsMinimized);
  children[1]->OnClose = [](TObject*, TCloseAction& action) { action = caFree; };
  children[1]->SetFocus();
  EXPECT_TRUE(close.Execute());
  EXPECT_TRUE(PumpUntil([&] { return main->MDIChildCount() == 1; }));
  bool closed = false;
  main->OnClose = [&](TObject*, TCloseAction& action) {
    closed = true;
    action = caNone;
  };
  EXPECT_TRUE(exit.Execute());
  EXPECT_TRUE(closed);
  delete main;
  EXPECT_FALSE(exit.Execute());
}

}  // namespace
}  // namespace vcl
