// Components over the screen and the clipboard.
#include <gmock/gmock.h>

#include <fstream>

#include "qel/qel.h"
#include "tests/services/roles.h"
#include "tests/support/importpatch.h"
#include "tests/vcl/testinput.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

using testing::HasSubstr;
using testinput::PumpUntil;

class FormExplode : public testing::Test {
 protected:
  FormExplode() {
    Form.SetBounds(200, 150, 300, 200);
    Explode->SetTime(120);
  }
  ~FormExplode() override { SawFrame = nullptr; }
  /// Hears where the frame is put.
  static BOOL WINAPI Place(HWND window, HWND after, int x, int y, int width, int height,
                           UINT flags) {
    wchar_t name[16] = L"";
    ::GetClassNameW(window, name, 16);
    if (std::wstring(name) == L"Static" && SawFrame)
      SawFrame(vcl::TRect(x, y, x + width, y + height));
    return ::SetWindowPos(window, after, x, y, width, height, flags);
  }
  static int Windows() {
    int count = 0;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND, LPARAM number) WINAPI -> BOOL { return ++*reinterpret_cast<int*>(number), TRUE; },
        reinterpret_cast<LPARAM>(&count));
    return count;
  }
  static inline std::function<void(vcl::TRect)> SawFrame;
  TImportPatch Patch{"qel.dll", "SetWindowPos", &Place};
  vcl::TForm Form{nullptr};
  TQELFormExplode* Explode = new TQELFormExplode(&Form);
};

TEST_F(FormExplode, AFrameGrowsOutOfAPointAndShrinks) {
  std::vector<vcl::TRect> frames;
  std::vector<bool> seen;
  SawFrame = [&](vcl::TRect frame) {
    frames.push_back(frame);
    seen.push_back(::IsWindowVisible(Form.Handle()) != FALSE);
  };
  Form.HandleNeeded();
  const int windows = Windows();
  Form.Show();
  ASSERT_GT(frames.size(), 2u);
  EXPECT_EQ(frames.front(), vcl::TRect(350, 250, 350, 250)) << "the middle";
  EXPECT_EQ(frames.back(), vcl::TRect(200, 150, 500, 350));
  EXPECT_FALSE(seen.back()) << "before the form";
  EXPECT_EQ(Windows(), windows) << "nothing is left";
  frames.clear();
  Explode->SetOnCloseType(wsFormTopBorder);
  Form.Hide();
  ASSERT_GT(frames.size(), 2u);
  EXPECT_EQ(frames.back(), vcl::TRect(200, 150, 500, 150));
  frames.clear();
  Explode->SetShowType(onHide);
  Form.Show();
  EXPECT_TRUE(frames.empty());
  Form.SetWindowState(vcl::wsMinimized);
  Form.Hide();
  EXPECT_TRUE(frames.empty()) << "of an icon";
}

TEST_F(FormExplode, TheWindowItselfGrowsAndIsWholeAgain) {
  Explode->SetStyle(esRegion);
  Form.Show();
  RECT box{};
  EXPECT_TRUE(::IsWindowVisible(Form.Handle()));
  EXPECT_EQ(::GetWindowRgnBox(Form.Handle(), &box), ERROR) << "the shape is gone";
  Form.Hide();
  EXPECT_EQ(::GetWindowRgnBox(Form.Handle(), &box), ERROR);
  // A form of a shape of its own keeps it.
  ::SetWindowRgn(Form.Handle(), ::CreateEllipticRgn(0, 0, 100, 100), FALSE);
  Form.Show();
  EXPECT_EQ(::GetWindowRgnBox(Form.Handle(), &box), COMPLEXREGION);
}

std::vector<std::string> Lines(const std::filesystem::path& file) {
  std::vector<std::string> lines;
  std::ifstream in(file);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

class Clipboards : public testing::Test {
 protected:
  std::filesystem::path Report() const { return Folder.Path / "report"; }
  std::string ReportName() const { return "\"" + Report().string() + "\""; }
  bool Reported(std::size_t lines) const {
    return PumpUntil([&] { return Lines(Report()).size() >= lines; }, 30000);
  }
  testing_support::TFolder Folder;
  TQELClipboard Clipboard{nullptr};
};

TEST_F(Clipboards, AnotherProgramHearsAChange) {
  Clipboard.SetAsText("before");
  const TRole other("watch-clipboard", ReportName());
  ASSERT_TRUE(Reported(1));
  int changes = 0;
  Clipboard.OnChange = [&](vcl::TObject*) { ++changes; };
  Clipboard.SetAsText("Grüße");
  EXPECT_TRUE(Reported(2));
  EXPECT_EQ(Lines(Report()).back(), "Grüße");
  EXPECT_TRUE(PumpUntil([&] { return changes > 0; })) << "and this one, too";
}

TEST_F(Clipboards, OneThatIsHeldIsRefusedSoon) {
  auto other = std::make_unique<TRole>("hold-clipboard", ReportName());
  ASSERT_TRUE(Reported(1));
  const ULONGLONG begin = ::GetTickCount64();
  EXPECT_THROW(Clipboard.AsText(), vcl::EClipboardError);
  EXPECT_GE(::GetTickCount64() - begin, 95u);
  EXPECT_EQ(vcl::Clipboard()->Patience(), 200) << "the library's own stays";
  other.reset();
  ASSERT_TRUE(PumpUntil([] { return ::GetOpenClipboardWindow() == nullptr; }));
  Clipboard.SetAsText("again");
  EXPECT_EQ(Clipboard.AsText(), "again");
}

TEST_F(Clipboards, KeepsWhatWasThere) {
  Clipboard.SetHistoryCount(2);
  Clipboard.SetHistoryCount(-1);
  const auto put = [&](const std::string& text) {
    const int former = Clipboard.Kept();
    Clipboard.SetAsText(text);
    PumpUntil([&] { return Clipboard.Kept() > 0 && Clipboard.History(0).AsText() == text; }, 2000);
    return former;
  };
  put("one");
  put("two");
  put("three");
  ASSERT_EQ(Clipboard.Kept(), 2);
  EXPECT_EQ(Clipboard.History(1).AsText(), "two");
  EXPECT_THROW(Clipboard.History(2), vcl::EListError);
  vcl::TDataObject secret;
  secret.SetText("password");
  secret.SetBytes(vcl::RegisterTransferFormat("ExcludeClipboardContentFromMonitorProcessing"), "1");
  vcl::Clipboard()->Put(secret);
  vcl::TDataObject other;
  other.SetText("private");
  other.SetBytes(vcl::RegisterTransferFormat("CanIncludeInClipboardHistory"), std::string(4, '\0'));
  testinput::PumpFor(100);
  vcl::Clipboard()->Put(other);
  testinput::PumpFor(200);
  EXPECT_EQ(Clipboard.History(0).AsText(), "three") << "what is marked stays out";
  Clipboard.Recall(1);
  EXPECT_EQ(Clipboard.AsText(), "two");
  EXPECT_TRUE(PumpUntil([&] { return Clipboard.History(0).AsText() == "two"; }));
  EXPECT_EQ(Clipboard.Kept(), 2) << "it has moved to the front";
  EXPECT_TRUE(Clipboard.Has("text"));
  EXPECT_FALSE(Clipboard.Has("picture"));
  Clipboard.SetHistoryCount(0);
  EXPECT_EQ(Clipboard.Kept(), 0);
}

class ScreenCanvas : public testing::Test {
 protected:
  ScreenCanvas() {
    Form.SetBorderStyle(vcl::bsNone);
    Form.SetBounds(120, 130, 100, 80);
    Form.SetColor(vcl::clLime);
    Form.SetFormStyle(vcl::fsStayOnTop);
    Form.Show();
    testinput::Pump();
  }
  vcl::TForm Form{nullptr};
  TQELScreenCanvas Screen{nullptr};
};

TEST_F(ScreenCanvas, SeesDrawsAndRestores) {
  ASSERT_TRUE(PumpUntil([&] { return Screen.PixelColor(150, 150) == vcl::clLime; }));
  vcl::TBitmap bitmap;
  Screen.Capture({110, 130, 150, 160}, bitmap);
  EXPECT_EQ(bitmap.Width(), 40);
  EXPECT_EQ(bitmap.Height(), 30);
  EXPECT_EQ(bitmap.Canvas()->Pixels(10, 0), vcl::clLime);
  EXPECT_NE(bitmap.Canvas()->Pixels(9, 0), vcl::clLime);
  Screen.CaptureForm(&Form, bitmap);
  EXPECT_EQ(bitmap.Width(), 100);
  EXPECT_EQ(bitmap.Canvas()->Pixels(99, 79), vcl::clLime);
  Screen.Canvas()->Brush()->SetColor(vcl::clRed);
  Screen.Canvas()->FillRect({140, 140, 160, 160});
  EXPECT_EQ(Screen.PixelColor(150, 150), vcl::clRed);
  Screen.Restore();
  EXPECT_TRUE(PumpUntil([&] { return Screen.PixelColor(150, 150) == vcl::clLime; }));
  EXPECT_EQ(Screen.PixelColor(-30000, 0), vcl::clNone);
}

TEST_F(ScreenCanvas, RefusesWhatIsNoPicture) {
  vcl::TBitmap bitmap;
  bitmap.SetSize(3, 3);
  EXPECT_THROW(Screen.Capture({10, 10, 10, 20}, bitmap), vcl::EArgumentOutOfRangeException);
  EXPECT_THROW(Screen.Capture({0, 0, 100000, 100000}, bitmap), vcl::EArgumentOutOfRangeException);
  EXPECT_THROW(Screen.CaptureWindow(reinterpret_cast<HWND>(INT_PTR{1}), bitmap),
               vcl::EInvalidOperation);
  EXPECT_THROW(Screen.CaptureForm(nullptr, bitmap), vcl::EInvalidOperation);
  EXPECT_EQ(bitmap.Width(), 3);
  const testing_support::TFolder folder;
  for (const char* name : {"shot.png", "shot.bmp"}) {
    const std::string file = (folder.Path / name).string();
    Screen.CaptureToFile({120, 130, 220, 210}, file);
    vcl::TPicture picture;
    picture.LoadFromFile(file);
    EXPECT_EQ(picture.Width(), 100) << name;
  }
}

}  // namespace
}  // namespace qel
