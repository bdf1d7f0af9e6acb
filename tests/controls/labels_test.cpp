// The labels that follow a control, run their caption, or show a fact.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/support/importpatch.h"
#include "tests/support/registered.h"
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/rtl/utf16.h"

#include <shellapi.h>

namespace qel {
namespace {

using testinput::PumpUntil;

class Labels : public vcl::TStandardForm {
 protected:
  vcl::TRect PlaceOf(const vcl::TControl& control) { return control.BoundsRect(); }
};

TEST_F(Labels, AStickyOneStandsOnEachSide) {
  auto* edit = Make<vcl::TEdit>(100, 100);
  edit->SetBounds(100, 100, 80, 40);
  auto* label = Make<TQELStickyLabel>(0, 0);
  label->SetAutoSize(false);
  label->SetBounds(0, 0, 50, 20);
  label->SetControl(edit);
  EXPECT_EQ(PlaceOf(*label), vcl::Bounds(46, 110, 50, 20));
  label->SetPosition(pRight);
  EXPECT_EQ(PlaceOf(*label), vcl::Bounds(184, 110, 50, 20));
  label->SetDistance(10);
  label->SetDistance(-1);
  label->SetPosition(pTop);
  EXPECT_EQ(PlaceOf(*label), vcl::Bounds(115, 70, 50, 20));
  label->SetSideAlignment(ssBegin);
  label->SetPosition(pBottom);
  EXPECT_EQ(PlaceOf(*label), vcl::Bounds(100, 150, 50, 20));
  label->SetSideAlignment(ssEnd);
  EXPECT_EQ(PlaceOf(*label), vcl::Bounds(130, 150, 50, 20));
  label->SetBounds(3, 3, 60, 20);
  EXPECT_EQ(PlaceOf(*label), vcl::Bounds(120, 150, 60, 20)) << "only the size is taken";
}

TEST_F(Labels, AStickyOneFollowsAWindowAndAControlWithoutOne) {
  auto* panel = Make<vcl::TPanel>(200, 200);
  auto* label = Make<TQELStickyLabel>(0, 0);
  label->SetAutoSize(false);
  label->SetBounds(0, 0, 50, 20);
  for (vcl::TControl* control : {static_cast<vcl::TControl*>(Make<vcl::TEdit>(100, 100)),
                                 static_cast<vcl::TControl*>(Make<vcl::TLabel>(100, 100))}) {
    ShowForm();
    control->SetParent(&Form);
    label->SetControl(control);
    control->SetBounds(120, 60, 90, 20);
    EXPECT_EQ(PlaceOf(*label), vcl::Bounds(66, 60, 50, 20));
    control->SetParent(panel);
    EXPECT_EQ(label->Parent(), panel);
    control->SetLeft(70);
    EXPECT_EQ(label->Left(), 16);
    control->Hide();
    EXPECT_FALSE(label->Visible());
    label->SetFollowVisible(false);
    control->Show();
    EXPECT_FALSE(label->Visible());
    label->SetFollowVisible(true);
    EXPECT_TRUE(label->Visible());
    control->SetEnabled(false);
    EXPECT_TRUE(label->Enabled());
    label->SetFollowEnabled(true);
    EXPECT_FALSE(label->Enabled());
    label->SetFollowEnabled(false);
    label->SetEnabled(true);
    const vcl::TRect last = PlaceOf(*label);
    delete control;
    EXPECT_EQ(label->Control(), nullptr);
    EXPECT_EQ(PlaceOf(*label), last) << "what is freed leaves it where it is";
    label->SetLeft(1);
    EXPECT_EQ(label->Left(), 1);
  }
}

TEST_F(Labels, AStickyOneFocusesItsControlAndIsReadWithIt) {
  auto* edit = Make<vcl::TEdit>(100, 100);
  auto* other = Make<vcl::TEdit>(100, 200);
  auto* label = Make<TQELStickyLabel>(0, 0);
  label->SetCaption("&Width");
  label->SetControl(edit);
  ShowForm();
  other->SetFocus();
  Click(*label);
  EXPECT_TRUE(PumpUntil([&] { return edit->Focused(); }));
  other->SetFocus();
  KeyWith(VK_MENU, 'W');
  EXPECT_TRUE(PumpUntil([&] { return edit->Focused(); }));
  EXPECT_EQ(edit->Accessible().Name, "Width");
  Form.ScaleBy(2, 1);
  EXPECT_EQ(label->Distance(), 8);
  EXPECT_EQ(label->BoundsRect().Right + 8, edit->Left());
}

TEST_F(Labels, AStickyOneComesBackFromItsFormFile) {
  RegisterAll();
  vcl::RegisterClasses({&vcl::TEdit::Class()});
  vcl::TForm form(nullptr);
  ReadForm(
      "object F: TForm object Label: TQELStickyLabel AutoSize = False Width = 40 Height = 10 "
      "Control = Edit Position = pTop end object Edit: TEdit Left = 50 Top = 60 Width = 80 end end",
      &form);
  auto* label = dynamic_cast<TQELStickyLabel*>(form.FindComponent("Label"));
  EXPECT_EQ(label->BoundsRect(), vcl::Bounds(70, 46, 40, 10));
  EXPECT_NE(FormText(&form).find("Control = Edit"), std::string::npos);
}

// Commands.

struct TOpened {
  std::string Verb, Target;
  int Show;
};
std::vector<TOpened> opened;
int shellAnswer = 33;

HINSTANCE WINAPI KeepOpened(HWND, LPCWSTR verb, LPCWSTR target, LPCWSTR, LPCWSTR, INT show) {
  opened.push_back({vcl::ToUtf8(verb), vcl::ToUtf8(target), show});
  return reinterpret_cast<HINSTANCE>(static_cast<std::intptr_t>(shellAnswer));
}

class CommandLabel : public Labels {
 protected:
  CommandLabel() {
    opened.clear();
    shellAnswer = 33;
    It = Make<TQELCommandLabel>(20, 20);
    It->SetCaption("&www.example.org");
  }
  TImportPatch Shell{"qel.dll", "ShellExecuteW", &KeepOpened};
  TQELCommandLabel* It;
};

TEST_F(CommandLabel, OpensItsCaptionBehindThePrefixOfItsKind) {
  const std::tuple<TQELCommand, const char*, const char*> cases[] = {
      {runURL, "www.example.org", "http://www.example.org"},
      {runURL, "HTTP://www.example.org", "http://www.example.org"},
      {runMAIL, "mailto:a@b.org", "mailto:a@b.org"},
      {runFTP, "files", "ftp://files"},
      {runFILE, "c:\\a.txt", "file:c:\\a.txt"},
      {runNothing, "calc.exe", "calc.exe"}};
  for (const auto& [command, caption, target] : cases) {
    opened.clear();
    It->SetCommand(command);
    It->SetCaption(caption);
    It->Run();
    ASSERT_EQ(opened.size(), 1u) << caption;
    EXPECT_EQ(opened[0].Target, target);
    EXPECT_EQ(opened[0].Verb, "open");
    EXPECT_EQ(opened[0].Show, 1);
  }
}

TEST_F(CommandLabel, IsRunByThePressTheAcceleratorAndAScreenReader) {
  ShowForm();
  testinput::MoveMouse(testinput::MiddleOf(It));
  testinput::LeftDown();
  EXPECT_TRUE(PumpUntil([&] { return opened.size() == 1; })) << "the press, not its release";
  testinput::LeftUp();
  EXPECT_TRUE(It->Visited());
  KeyWith(VK_MENU, 'W');
  EXPECT_TRUE(PumpUntil([&] { return opened.size() == 2; }));
  It->DoAccessibleAction();
  EXPECT_EQ(opened.size(), 3u);
  It->SetEnabled(false);
  It->Run();
  EXPECT_EQ(opened.size(), 3u);
}

TEST_F(CommandLabel, AsksFirstAndTellsOfARefusal) {
  std::string asked;
  bool allowed = false;
  int code = 0;
  It->OnCommand = [&](vcl::TObject*, std::string& target, bool& allow) {
    asked = target;
    target = "other:";
    allow = allowed;
  };
  It->OnError = [&](vcl::TObject*, int shellCode) { code = shellCode; };
  It->Run();
  EXPECT_EQ(asked, "http://www.example.org");
  EXPECT_TRUE(opened.empty());
  allowed = true;
  shellAnswer = SE_ERR_NOASSOC;
  It->Run();
  EXPECT_EQ(opened.at(0).Target, "other:");
  EXPECT_EQ(code, SE_ERR_NOASSOC);
  EXPECT_FALSE(It->Visited());
  int runs = 0;
  It->RunEvent = [&](vcl::TObject*) { ++runs; };
  It->SetCommand(runEVENT);
  It->Run();
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(opened.size(), 1u);
}

TEST_F(CommandLabel, LightsUpUnderTheMouse) {
  Form.SetColor(vcl::clWhite);
  It->SetHotColor(vcl::clRed);
  It->Font3D()->SetThreeDimensional(false);
  ShowForm();
  testinput::MoveMouse(Form.ClientToScreen({490, 390}));
  EXPECT_TRUE(Find(vcl::clRed).Empty());
  testinput::MoveMouse(testinput::MiddleOf(It));
  EXPECT_TRUE(PumpUntil([&] { return !Find(vcl::clRed).Empty(); }));
}

// Facts.

TEST_F(Labels, AnInformationLabelShowsItsFactBetweenItsTexts) {
  auto* label = Make<TQELInformationLabel>(0, 0);
  EXPECT_EQ(label->CaptionValue(), QELGetPCName());
  EXPECT_EQ(label->Caption(), QELGetPCName()) << "also where nothing has been set";
  label->SetPrefix("On ");
  label->SetSuffix("!");
  EXPECT_EQ(label->Caption(), "On " + QELGetPCName() + "!");
  label->SetCaption("written");
  EXPECT_EQ(label->Caption(), "On " + QELGetPCName() + "!");
  label->SetInterval(-1);
  EXPECT_EQ(label->Interval(), 0);
  const std::string text = FormText(label);
  EXPECT_EQ(text.find("Caption"), std::string::npos) << text;
  EXPECT_NE(text.find("Prefix = 'On '"), std::string::npos) << text;
}

TEST_F(Labels, AnInformationLabelAsksAgainAfterItsInterval) {
  auto* label = Make<TQELInformationLabel>(0, 0);
  label->SetInformation(iiUptime);
  label->SetInterval(50);
  ShowForm();
  const std::string before = label->Caption();
  EXPECT_TRUE(PumpUntil([&] { return label->Caption() != before; }));
}

TEST(SystemFacts, AreTextsThatEachOtherBearOut) {
  EXPECT_EQ(QELInformation(iiUserName), QELGetUsrName());
  EXPECT_EQ(QELInformation(iiOrganization), QELGetInformationNo(inOrganization));
  EXPECT_EQ(QELInformation(iiDiskSize), QELGetInformationNo(inDiskSize));
  EXPECT_EQ(QELInformation(iiVersion), QELGetInformationNo(inVersion));
  EXPECT_THAT(QELInformation(iiSystemName), testing::HasSubstr("Windows"));
  EXPECT_GT(std::stoi(QELInformation(iiSystemBuild)), 0);
  EXPECT_GE(std::stoi(QELInformation(iiProcessorCount)), 1);
  EXPECT_EQ(QELInformation(iiScreenSize), std::to_string(::GetSystemMetrics(SM_CXSCREEN)) + " x " +
                                              std::to_string(::GetSystemMetrics(SM_CYSCREEN)));
  EXPECT_EQ(QELDurationText(0), "00:00:00");
  EXPECT_EQ(QELDurationText(86400000ull + 3723000), "1 day 01:02:03");
  EXPECT_EQ(QELDurationText(3 * 86400000ull - 1), "2 days 23:59:59");
  const auto memory = QELMemoryFacts();
  ASSERT_TRUE(memory);
  EXPECT_LE(memory->Free, memory->Size);
  EXPECT_FALSE(QELDriveFacts("Q:\\nowhere\\"));
}

TEST_F(Labels, AVersionLabelShowsAnEntryOfAFile) {
  auto* label = Make<TQELVersionLabel>(0, 0);
  EXPECT_EQ(label->Caption(), "") << "this program has none";
  label->SetPrefix("Version ");
  EXPECT_EQ(label->Caption(), "");
  label->SetFilename("C:\\windows\\system32\\kernel32.dll");
  EXPECT_THAT(label->Caption(), testing::ContainsRegex("^Version \\d+\\."));
  label->SetItem(viOriginalFilename);
  EXPECT_THAT(label->Caption(), testing::StrCaseEq("Version kernel32.dll"));
  label->SetFilename("C:\\nowhere.dll");
  EXPECT_EQ(label->Caption(), "");
}

}  // namespace
}  // namespace qel
