// TQELMRUMenu: what stands in the menu and in the store.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "tests/support/texts.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

using testing::ElementsAre;
using TLines = std::vector<std::string>;

class MRUMenu : public testing::Test {
 protected:
  MRUMenu() : Menu(std::make_unique<vcl::TMainMenu>(nullptr)) {
    File = Add(Menu->Items(), "File");
    Open = Add(File, "Open");
    Exit = Add(File, "Exit");
    MRU = Make();
    MRU->SetAsSubMenu(false);
    MRU->SetAttachToMenu(Exit);
  }
  ~MRUMenu() override {
    if (MRU) MRU->Clear();
  }
  static vcl::TMenuItem* Add(vcl::TMenuItem* parent, const std::string& caption) {
    auto* item = new vcl::TMenuItem(nullptr);
    item->SetCaption(caption);
    parent->Add(item);
    return item;
  }
  static std::unique_ptr<TQELMRUMenu> Make() {
    auto mru = std::make_unique<TQELMRUMenu>(nullptr);
    mru->MRUStore()->Registry()->SetPath("Software\\QELTests\\MRU");
    return mru;
  }
  void Fill(const TLines& names) {
    for (const std::string& name : names) MRU->Insert(name);
  }
  static TLines Captions(const vcl::TMenuItem* menu) {
    TLines captions;
    for (int i = 0; i < menu->Count(); ++i) captions.push_back(menu->Items(i)->Caption());
    return captions;
  }
  TLines Shown() const { return Captions(File); }
  TLines Stored() {
    vcl::TStringList lines;
    MRU->MRUStore()->ReadStrs(lines);
    return Lines(lines);
  }
  std::unique_ptr<vcl::TMainMenu> Menu;
  vcl::TMenuItem *File, *Open, *Exit;
  std::unique_ptr<TQELMRUMenu> MRU;
};

TEST_F(MRUMenu, NamesComeAndGoInTheirOwnOrder) {
  const std::pair<std::function<void()>, TLines> steps[] = {
      {[&] {
         MRU->SetMaxItems(3), Fill({"a", "b", "c", "d"});
       },
       {"-", "b", "c", "d"}},
      {[&] { MRU->Insert("C"); }, {"-", "c", "b", "d"}},
      {[&] { MRU->Delete("B"); }, {"-", "c", "d"}},
      {[&] { MRU->SetSeparator(false); }, {"c", "d"}},
      {[&] {
         MRU->SetMaxItems(10), Fill({"Ä&=", "ä&=", "-"});
       },
       {"Ä&=", "c", "d", "-"}},
      {[&] { MRU->SetMaxItems(2); }, {"Ä&=", "c"}},
      {[&] { MRU->SetNumbering(true), MRU->PopulateMenu(); }, {"&1 Ä&=", "&2 c"}},
      {[&] { MRU->SetMaxItems(0), MRU->Insert("e"); }, {}},
  };
  for (const auto& [step, names] : steps) {
    step();
    TLines expected = names;
    expected.insert(expected.begin(), "Open");
    expected.push_back("Exit");
    EXPECT_EQ(Shown(), expected);
  }
}

TEST_F(MRUMenu, StandsWhereItIsAttached) {
  Fill({"a", "b"});
  MRU->SetAsSubMenu(true);
  EXPECT_THAT(Shown(), ElementsAre("Open", "-", "Reopen", "Exit"));
  EXPECT_THAT(Captions(File->Items(2)), ElementsAre("a", "b"));
  MRU->SetSubMenuname("Again");
  MRU->SetAttachToMenu(File);
  EXPECT_THAT(Shown(), ElementsAre("Open", "Exit", "-", "Again"));
  Add(Open, "Inside");
  MRU->SetAttachToMenu(Open);
  EXPECT_THAT(Shown(), ElementsAre("Open", "Exit"));
  EXPECT_THAT(Captions(Open), ElementsAre("Inside", "-", "Again"));
  MRU->SetAttachToMenu(nullptr);
  EXPECT_THAT(Captions(Open), ElementsAre("Inside"));
}

TEST_F(MRUMenu, AClickedNameLeavesTheListAndItsHandlerMayDoAnything) {
  TLines log;
  std::function<void()> act;
  MRU->OnItemClick = [&](vcl::TObject* sender, const std::string& name) {
    EXPECT_EQ(Shown(), (TLines{"Open", "-", "a", "c", "Exit"}));
    act();
    if (MRU) log.push_back(name + static_cast<TQELMRUItem*>(sender)->Caption());
  };
  const std::function<void()> acts[] = {[&] { MRU->Insert("b"); }, [&] { MRU->Clear(); },
                                        [&] { MRU.reset(); }};
  for (const auto& each : acts) {
    MRU->Clear();
    Fill({"a", "b", "c"});
    act = each;
    File->Items(3)->Click();
  }
  EXPECT_THAT(log, ElementsAre("bb", "bb"));
  EXPECT_THAT(Shown(), ElementsAre("Open", "Exit")) << "the items go with the component";
  (MRU = Make())->Clear();
}

TEST_F(MRUMenu, AMenuThatIsFreedIsNeverFollowed) {
  Fill({"a"});
  delete Exit;
  EXPECT_EQ(MRU->AttachToMenu(), Exit) << "kept at run time";
  EXPECT_THAT(Shown(), ElementsAre("Open"));
  MRU->Insert("b");
  MRU->SetAsSubMenu(true);
  MRU->SetAttachToMenu(Open);
  EXPECT_THAT(Shown(), ElementsAre("-", "Reopen", "Open"));
  Menu.reset();
  MRU->Insert("c");
  vcl::TComponent form(nullptr);
  form.SetDesigning(true);
  auto* designed = new TQELMRUMenu(&form);
  auto* item = new vcl::TMenuItem(nullptr);
  designed->SetAttachToMenu(item);
  delete item;
  EXPECT_EQ(designed->AttachToMenu(), nullptr) << "cleared in the designer";
}

TEST_F(MRUMenu, TheStoreHasTheListFromRunToRun) {
  Fill({"a=b", "c&", "d"});
  MRU.reset();
  MRU = Make();
  EXPECT_THAT(Stored(), ElementsAre("MRU0=a=b", "MRU1=c&", "MRU2=d"));
  MRU->SetMaxItems(2);
  MRU->SetAsSubMenu(false);
  MRU->SetAttachToMenu(Exit);
  EXPECT_TRUE(MRU->Load());
  EXPECT_THAT(Shown(), ElementsAre("Open", "-", "a=b", "c&", "d", "Exit"));
  MRU->MRUStore()->Registry()->SetSection("");
  EXPECT_TRUE(MRU->Load());
  EXPECT_EQ(Shown().size(), 6u) << "nothing was read";
  MRU->MRUStore()->SetEnabled(false);
  EXPECT_FALSE(MRU->Load() || MRU->Save());
  MRU->MRUStore()->SetEnabled(true);
  MRU->MRUStore()->Registry()->SetSection("MRU Items");
  for (int i = 3; i < 1000; ++i) MRU->MRUStore()->WriteStr("X" + std::to_string(i), "x");
  MRU->Load();
  EXPECT_EQ(File->Count(), 1003) << "all are shown";
  std::string clicked;
  MRU->OnItemClick = [&](vcl::TObject* sender, const std::string& name) {
    clicked = std::to_string(static_cast<TQELMRUItem*>(sender)->Number()) + name;
  };
  MRU->MRUStore()->WriteStr("Y", "last");
  MRU->Load();
  File->Items(1002)->Click();
  EXPECT_EQ(clicked, "1001last");
}

TEST_F(MRUMenu, WhatTheStoreRefusesReachesTheCallerAndTheRestIsKept) {
  MRU->MRUStore()->SetDatatype(sIniFile);
  const std::string file = "C:\\mru_test.ini";
  MRU->MRUStore()->Inifile()->SetFilename(file);
  Fill({"a", "b\nc", "d"});
  EXPECT_THROW(MRU->Save(), vcl::Exception);
  EXPECT_THAT(Stored(), ElementsAre("MRU0=a", "MRU2=d"));
  MRU->MRUStore()->Inifile()->SetFilename("C:\\no such folder\\x.ini");
  int errors = 0;
  vcl::Application()->OnException = [&](vcl::TObject*, const std::exception&) { ++errors; };
  MRU.reset();
  EXPECT_EQ(errors, 1);
  vcl::Application()->OnException = nullptr;
  ::DeleteFileA(file.c_str());
}

/// A menu that is read with its form.
struct TLoadedMRU : TQELMRUMenu {
  using TQELMRUMenu::Loaded;
  using TQELMRUMenu::TQELMRUMenu;
};

/// A store that can't be read for a while.
class MRUMenuUnread : public MRUMenu {
 protected:
  MRUMenuUnread() {
    for (int i = 0; i < 2; ++i) MRU->MRUStore()->WriteStr("MRU" + std::to_string(i), Names[i]);
  }
  /// One that has loaded what is there, and OnError's number of calls.
  int Loaded(std::unique_ptr<TLoadedMRU>& mru) const {
    int told = 0;
    mru = std::make_unique<TLoadedMRU>(nullptr);
    mru->MRUStore()->SetDatatype(MRU->MRUStore()->Datatype());
    mru->MRUStore()->Inifile()->SetFilename(MRU->MRUStore()->Inifile()->Filename());
    mru->MRUStore()->Registry()->SetPath(MRU->MRUStore()->Registry()->Path());
    mru->MRUStore()->OnError = [&](vcl::TObject*) { ++told; };
    mru->Loaded();
    mru->MRUStore()->OnError = nullptr;
    return told;
  }
  const std::string Names[2] = {"a", "b"};
};

TEST_F(MRUMenuUnread, AValueOfAnotherTypeKeepsTheStoreAsItIs) {
  const auto set = [&](DWORD type) {
    ::RegSetKeyValueA(HKEY_CURRENT_USER, "Software\\QELTests\\MRU\\MRU Items", "MRU1", type, "b",
                      4);
  };
  set(REG_DWORD);
  std::unique_ptr<TLoadedMRU> mru;
  EXPECT_EQ(Loaded(mru), 1);
  EXPECT_THROW(mru->Load(), vcl::ERegistryException);
  EXPECT_THROW(mru->Clear(), vcl::ERegistryException);
  mru.reset();
  EXPECT_EQ(Loaded(mru), 1) << "it is still there";
  mru->Insert("c");
  EXPECT_THROW(mru->Save(), vcl::ERegistryException);
  set(REG_SZ);
  mru->Save();
  EXPECT_THAT(Stored(), ElementsAre("MRU0=a", "MRU1=b", "MRU2=c"));
}

TEST_F(MRUMenuUnread, ALockedFileIsToldOnceAndKeptWithWhatComesLater) {
  const std::string file = "C:\\mru_test.ini";
  MRU->MRUStore()->SetDatatype(sIniFile);
  MRU->MRUStore()->Inifile()->SetFilename(file);
  for (int i = 0; i < 2; ++i) MRU->MRUStore()->WriteStr("MRU" + std::to_string(i), Names[i]);
  const HANDLE lock =
      ::CreateFileA(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  std::unique_ptr<TLoadedMRU> mru, unused;
  const DWORD start = ::GetTickCount();
  EXPECT_EQ(Loaded(mru), 1);
  EXPECT_EQ(Loaded(unused), 1);
  EXPECT_LT(::GetTickCount() - start, 8000u);
  ::CloseHandle(lock);
  unused.reset();
  EXPECT_THAT(Stored(), ElementsAre("MRU0=a", "MRU1=b"));
  mru->Insert("B");
  mru->Insert("c");
  mru.reset();
  EXPECT_THAT(Stored(), ElementsAre("MRU0=a", "MRU1=b", "MRU2=c"));
  ::DeleteFileA(file.c_str());
}

}  // namespace
}  // namespace qel
