// TQELFormSaver on real forms that are closed and shown again; the values stand in an INI file.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/support/texts.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

/// A form with a button in a box; its own handlers keep a log.
class TSavedForm : public vcl::TForm {
 public:
  explicit TSavedForm(vcl::TComponent* owner) : TForm(owner) {
    ReadForm(
        "object SavedForm: TSavedForm Left = 50 Top = 60 Width = 400 Height = 300\n"
        " OnShow = FormShow OnClose = FormClose\n"
        " object Box: TGroupBox Left = 5 Top = 6 Width = 200 Height = 100\n"
        "  object Button1: TButton Left = 7 Top = 8 Width = 75 Height = 25 end end\n"
        " object Saver: TQELFormSaver FormStore.Datatype = sIniFile\n"
        "  FormStore.Inifile.Filename = '" +
            IniName() + "' end end",
        this);
  }
  static const vcl::TClass& Class() {
    using namespace vcl;
    using T = TSavedForm;
    static const TClass info = Describe<T, TForm>(
        "TSavedForm", "formsaver_test",
        {Field<&T::Box>("Box"), Field<&T::Button1>("Button1"), Field<&T::Saver>("Saver"),
         Method<&T::FormShow>("FormShow"), Method<&T::FormClose>("FormClose")});
    return info;
  }
  const vcl::TClass& ClassType() const override { return Class(); }
  static std::string IniName() {
    return (std::filesystem::temp_directory_path() / "formsaver test.ini").string();
  }

  vcl::TGroupBox* Box = nullptr;
  vcl::TButton* Button1 = nullptr;
  TQELFormSaver* Saver = nullptr;
  std::string Log;

 private:
  void FormShow(vcl::TObject*) { Log += "show "; }
  void FormClose(vcl::TObject*, vcl::TCloseAction&) { Log += "close "; }
};

class FormSaver : public testing::Test {
 protected:
  FormSaver() { std::filesystem::remove(TSavedForm::IniName()); }
  ~FormSaver() override { delete Form; }

  static void Write(const std::string& lines) {
    std::ofstream(TSavedForm::IniName()) << "[MySection]\n" << lines;
  }
  /// The stored values, with a blank behind each.
  static std::string Stored() {
    std::ifstream file(TSavedForm::IniName());
    std::string values, line;
    for (std::getline(file, line); file >> line;) values += line + " ";
    return values;
  }
  void ShowAndClose() {
    Form->Show();
    Form->Close();
  }
  TSavedForm* Form = new TSavedForm(vcl::Application());
};

TEST_F(FormSaver, ClosingStoresTheFormAndThenItsControlsAndShowingRestoresThem) {
  Form->Box->SetVisible(false);
  ShowAndClose();
  const std::string stored =
      "TSavedForm_WindowState=2 TSavedForm_Width=400 TSavedForm_Height=300 TSavedForm_Top=60 "
      "TSavedForm_Left=50 TSavedForm_Visible=1 "
      "Box_Width=200 Box_Height=100 Box_Top=6 Box_Left=5 Box_Visible=0 "
      "Button1_Width=75 Button1_Height=25 Button1_Top=8 Button1_Left=7 Button1_Visible=1 ";
  EXPECT_EQ(Stored(), stored);
  Form->SetBounds(1, 2, 333, 222);
  Form->Box->SetBounds(1, 2, 33, 22);
  Form->Box->SetVisible(true);
  Form->Button1->SetBounds(1, 2, 33, 22);
  ShowAndClose();
  EXPECT_EQ(Stored(), stored);
  EXPECT_EQ(Form->BoundsRect(), vcl::Bounds(50, 60, 400, 300));
  EXPECT_EQ(Form->Log, "show close show close ");
}

TEST_F(FormSaver, WhatIsNotWantedIsNotStored) {
  Form->Saver->SetStoreSize(false);
  Form->Saver->SetStoreVisible(false);
  Form->Saver->SetStoreState(false);
  Form->Saver->SetQualifyNames(true);
  ShowAndClose();
  EXPECT_EQ(Stored(),
            "TSavedForm_Top=60 TSavedForm_Left=50 TSavedForm_Box_Top=6 TSavedForm_Box_Left=5 "
            "TSavedForm_Button1_Top=8 TSavedForm_Button1_Left=7 ");
  Write("");
  Form->Saver->SetStoreControls(false);
  Form->Saver->SetStoreLocation(false);
  ShowAndClose();
  EXPECT_EQ(Stored(), "");
}

TEST_F(FormSaver, StatesHaveNumbersOfTheirOwn) {
  const struct {
    int Code;
    vcl::TWindowState State;
    const char* Stored;  // Without the bounds.
  } cases[] = {{3, vcl::wsMaximized, "TSavedForm_WindowState=3 TSavedForm_Visible=1 "},
               {0, vcl::wsMaximized, "TSavedForm_WindowState=3 TSavedForm_Visible=1 "},
               {1, vcl::wsMinimized, "TSavedForm_WindowState=1 TSavedForm_Visible=1 "},
               {4, vcl::wsMinimized, "TSavedForm_WindowState=1 TSavedForm_Visible=1 "}};
  Form->Saver->SetStoreControls(false);
  Form->SetWindowState(vcl::wsMaximized);
  Form->Show();  // Without a stored state it is normal.
  EXPECT_EQ(Form->WindowState(), vcl::wsNormal);
  Form->Hide();
  for (const auto& each : cases) {
    Write("TSavedForm_WindowState=" + std::to_string(each.Code) + "\n");
    Form->Show();
    EXPECT_EQ(Form->WindowState(), each.State) << each.Code;
    Write("");
    Form->Close();
    EXPECT_EQ(Stored(), each.Stored) << each.Code;
  }
}

TEST_F(FormSaver, AMinimizedMainFormComesBackAsAMinimizedApplication) {
  Write("TSavedForm_WindowState=1\n");
  const std::unique_ptr<TSavedForm> main(vcl::Application()->CreateForm<TSavedForm>());
  main->Show();
  EXPECT_TRUE(::IsIconic(vcl::Application()->Handle()));
  EXPECT_FALSE(::IsWindowVisible(main->Handle()));
  vcl::Application()->Restore();
}

TEST_F(FormSaver, ADescendantMayStoreTheBoundsFromBeforeMaximizing) {
  struct THooking : TQELFormSaver {
    using TQELFormSaver::ExtWndProc;
    using TQELFormSaver::TQELFormSaver;
  };
  const std::string state = "TSavedForm_WindowState=3 TSavedForm_Visible=1 ";
  delete Form->Saver;
  Form->Saver = new THooking(Form);
  Form->Saver->FormStore()->SetDatatype(sIniFile);
  Form->Saver->FormStore()->Inifile()->SetFilename(TSavedForm::IniName());
  Form->Saver->SetStoreControls(false);
  Form->Show();
  for (const WPARAM command : {SC_MAXIMIZE | 2, SC_MAXIMIZE}) {
    vcl::TMessage message{WM_SYSCOMMAND, command, 0, 0};
    static_cast<THooking*>(Form->Saver)->ExtWndProc(message);
    Form->SetWindowState(vcl::wsMaximized);
    Form->Saver->Store();
    Form->SetWindowState(vcl::wsNormal);
    EXPECT_EQ(Stored(), command & 2 ? state
                                    : state +
                                          "TSavedForm_Width=400 TSavedForm_Height=300 "
                                          "TSavedForm_Top=60 TSavedForm_Left=50 ");
  }
}

TEST_F(FormSaver, APageControlComesBackWithThePageThatWasActive) {
  auto* const pages = new vcl::TPageControl(Form);
  pages->SetParent(Form);
  pages->SetName("Pages");
  for (const char* const name : {"One", "Two", "Three"}) {
    auto* const page = new vcl::TTabSheet(Form);
    page->SetName(name);
    page->SetPageControl(pages);
  }
  for (const int stored : {0, 1, 2}) {
    Form->Show();
    pages->SetActivePageIndex(stored);
    Form->Close();
    for (const int begin : {0, 1, 2}) {
      pages->SetActivePageIndex(begin);
      Form->Show();
      EXPECT_EQ(pages->ActivePageIndex(), stored) << begin;
      for (int i = 0; i < 3; ++i) EXPECT_EQ(pages->Pages(i)->Visible(), i == stored) << begin << i;
      Form->Hide();
    }
  }
}

TEST_F(FormSaver, SparedControlsAreNotStoredButRead) {
  Form->Saver->OnStoreControl = [](vcl::TObject* sender, bool& result) {
    result = sender->ClassName() != "TGroupBox";
  };
  ShowAndClose();
  EXPECT_EQ(Stored().find("Box"), std::string::npos);
  EXPECT_EQ(Stored().find("Button1"), std::string::npos);
  Write("Box_Width=77\n");
  Form->Show();
  EXPECT_EQ(Form->Box->Width(), 77);
  EXPECT_EQ(Form->Button1->Width(), 75);
}

TEST_F(FormSaver, HandlersAreCalledInOrderAndTheFormsOwnAlways) {
  Form->Saver->OnStore = [this](vcl::TObject* sender) {
    Form->Log += sender == Form ? "store " : "?";
  };
  Form->Saver->OnRestore = [this](vcl::TObject*) { Form->Log += "restored "; };
  ShowAndClose();
  Form->Saver->Store();
  Form->Saver->Restore();
  EXPECT_EQ(Form->Log, "show restored close store close store show restored ");
  Form->Log.clear();
  Form->Saver->FormStore()->SetEnabled(false);
  Write("Box_Width=77\n");
  ShowAndClose();
  EXPECT_EQ(Form->Log, "show restored close ");
  EXPECT_EQ(Form->Box->Width(), 200);
  EXPECT_EQ(Stored(), "Box_Width=77 ");
}

TEST_F(FormSaver, KeepOnScreenMovesWhatIsOutOfReach) {
  const vcl::TRect area = vcl::Screen()->WorkAreaRect();
  const std::pair<vcl::TPoint, vcl::TPoint> cases[] = {
      {{9000, 9000}, {area.Right - 400, area.Bottom - 300}},
      {{-5000, 70}, {area.Left, 70}},
      {{90, area.Top - 50}, {90, area.Top}},
      {{-300, 80}, {-300, 80}},
      {{90, area.Bottom - 40}, {90, area.Bottom - 40}}};
  for (const bool keep : {false, true}) {
    Form->Saver->SetKeepOnScreen(keep);
    for (const auto& [stored, kept] : cases) {
      Write("TSavedForm_Left=" + std::to_string(stored.X) +
            "\nTSavedForm_Top=" + std::to_string(stored.Y) + "\n");
      Form->Show();
      EXPECT_EQ(Form->BoundsRect().TopLeft(), keep ? kept : stored);
      Form->Hide();
    }
  }
}

TEST_F(FormSaver, GivesTheFormItsHandlersAndItsWindowBack) {
  static int emptied;
  emptied = 0;
  // Where pointers fit into a LONG, the call that takes one is the other's name.
  const TImportPatch patch(
      "qel.dll", sizeof(void*) == sizeof(LONG) ? "SetWindowLongA" : "SetWindowLongPtrA",
      +[](HWND window, int index, LONG_PTR value) WINAPI -> LONG_PTR {
        emptied += index == GWLP_WNDPROC && value == 0;
        return ::SetWindowLongPtrA(window, index, value);
      });
  Form->Show();
  delete Form->Saver;
  EXPECT_EQ(emptied, 1);
  EXPECT_TRUE(::IsWindowUnicode(Form->Handle()));
  Form->Close();
  EXPECT_EQ(Form->Log, "show close ");
  EXPECT_FALSE(Form->Visible());
  EXPECT_EQ(Stored(), "");
}

TEST_F(FormSaver, HandlersMayFreeWhatTheyAreCalledFor) {
  const auto freeForm = [this](auto&&...) { delete std::exchange(Form, nullptr); };
  const auto freeSaver = [this](auto&&...) { delete std::exchange(Form->Saver, nullptr); };
  const auto freeBox = [this](vcl::TObject*, bool&) { delete std::exchange(Form->Box, nullptr); };
  Form->Saver->OnStoreControl = freeForm;
  ShowAndClose();
  EXPECT_EQ(Form, nullptr);
  Form = new TSavedForm(vcl::Application());
  Form->Saver->FormStore()->OnError = freeForm;
  Form->Show();
  EXPECT_EQ(Form, nullptr);
  Form = new TSavedForm(vcl::Application());
  Form->Saver->OnStore = freeSaver;
  ShowAndClose();
  EXPECT_FALSE(Form->Visible());
  delete Form;
  Form = new TSavedForm(vcl::Application());
  Form->Saver->OnStoreControl = freeBox;
  ShowAndClose();
  EXPECT_EQ(Form->Box, nullptr);
  TQELFormSaver later(Form);
  later.FormStore()->SetEnabled(false);
  freeSaver();
  later.Store();  // Calls what the freed one put in the place of OnClose.
}

TEST_F(FormSaver, StoresInTheRegistryAndReadsWithDefaultsThatStay) {
  const std::string path = "Software\\Form saver test " + std::to_string(::GetCurrentProcessId());
  Form->Saver->FormStore()->SetDatatype(sRegistry);
  Form->Saver->FormStore()->Registry()->SetPath(path);
  ShowAndClose();
  char width[8] = "";
  DWORD size = sizeof width;
  ::RegGetValueA(HKEY_CURRENT_USER, (path + "\\MySection").c_str(), "TSavedForm_Width",
                 RRF_RT_REG_SZ, nullptr, width, &size);
  EXPECT_STREQ(width, "400");
  EXPECT_EQ(Form->Saver->ReadStr("Nothing", "default"), "default");
  EXPECT_EQ(Form->Saver->FormStore()->ErrorStr(), "default");
  EXPECT_EQ(Form->Saver->FormStore()->ErrorInt(), 7);  // The left side of the button.
  ::RegDeleteTreeA(HKEY_CURRENT_USER, path.c_str());
}

TEST_F(FormSaver, AValueOfAnotherTypeIsToldAndTheOthersAreRestored) {
  const std::string path = "Software\\Form saver test " + std::to_string(::GetCurrentProcessId());
  Form->Saver->FormStore()->SetDatatype(sRegistry);
  Form->Saver->FormStore()->Registry()->SetPath(path);
  Form->Saver->SetStoreLocation(false);
  ShowAndClose();
  for (const char* const name : {"TSavedForm_Width", "TSavedForm_WindowState", "Box_Visible"}) {
    ::RegSetKeyValueA(HKEY_CURRENT_USER, (path + "\\MySection").c_str(), name, REG_DWORD, "abc", 4);
  }
  Form->SetBounds(1, 2, 333, 222);
  Form->Box->SetBounds(1, 2, 33, 22);
  Form->Button1->SetBounds(1, 2, 33, 22);  // A value as it is would be told, too.
  Form->Saver->FormStore()->OnError = [this](vcl::TObject*) { Form->Log += "error "; };
  Form->Log.clear();
  Form->Show();
  EXPECT_EQ(Form->Log, "show error error error ");
  EXPECT_EQ(Form->BoundsRect(), vcl::Bounds(1, 2, 333, 300));
  EXPECT_EQ(Form->Box->BoundsRect(), vcl::Bounds(1, 2, 200, 100));
  ::RegDeleteTreeA(HKEY_CURRENT_USER, path.c_str());
}

TEST_F(FormSaver, ALockedFileIsWaitedForAndToldOnce) {
  Write("Box_Width=77\n");
  const HANDLE lock = ::CreateFileA(TSavedForm::IniName().c_str(), GENERIC_READ, 0, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
  Form->Saver->FormStore()->OnError = [this](vcl::TObject*) { Form->Log += "error "; };
  Form->Saver->OnRestore = [this](vcl::TObject*) { Form->Log += "restored "; };
  const DWORD start = ::GetTickCount();
  ShowAndClose();
  EXPECT_FALSE(Form->Visible());
  EXPECT_EQ(Form->Log, "show error restored close error ");
  Form->Saver->FormStore()->OnError = nullptr;
  vcl::Application()->OnException = [this](vcl::TObject*, const std::exception& error) {
    Form->Log += error.what();
  };
  Form->Log.clear();
  Form->Saver->Store();
  EXPECT_LT(::GetTickCount() - start, 12000u) << "not for each value";
  vcl::Application()->OnException = nullptr;
  EXPECT_THAT(Form->Log, testing::HasSubstr("Cannot read file")) << "nobody else tells";
  ::CloseHandle(lock);
  EXPECT_EQ(Stored(), "Box_Width=77 ");
}

TEST_F(FormSaver, InADesignerTheFormIsLeftAlone) {
  vcl::TForm designed(nullptr);
  designed.SetDesigning(true);
  TQELFormSaver saver(&designed);
  EXPECT_FALSE(designed.OnShow || designed.OnClose);
}

}  // namespace
}  // namespace qel
