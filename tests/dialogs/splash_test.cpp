// TQELSplashScreen: its pixels, when it comes and when it goes.
#include <gmock/gmock.h>

#include <memory>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/support/registered.h"
#include "tests/support/texts.h"
#include "tests/vcl/testinput.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

using testinput::PumpFor;
using testinput::PumpUntil;

/// What the system was last told to show.
struct TShown {
  int Width = 0, Height = 0;
  vcl::TPoint Place;
  int Opacity = 0;
  std::vector<DWORD> Pixels;
  std::vector<int> Opacities;
};
TShown Last;

BOOL WINAPI Keep(HWND window, HDC screen, POINT* place, SIZE* size, HDC dc, POINT* from,
                 COLORREF key, BLENDFUNCTION* blend, DWORD flags) {
  Last.Width = size->cx;
  Last.Height = size->cy;
  Last.Place = {static_cast<int>(place->x), static_cast<int>(place->y)};
  Last.Opacities.push_back(blend->SourceConstantAlpha);
  DIBSECTION section{};
  ::GetObjectW(::GetCurrentObject(dc, OBJ_BITMAP), sizeof section, &section);
  const auto* pixels = static_cast<const DWORD*>(section.dsBm.bmBits);
  Last.Pixels.assign(pixels, pixels + size->cx * size->cy);
  return ::UpdateLayeredWindow(window, screen, place, size, dc, from, key, blend, flags);
}

class Splash : public testing::Test {
 protected:
  Splash() {
    Last = {};
    Screen->SetMinTime(0);
    Screen->SetFadeTime(0);
  }
  ~Splash() override { Last = {}; }
  /// Half of it red, the other half nothing.
  void SetPicture() {
    vcl::TBitmap bitmap(80, 60);
    bitmap.Canvas()->Brush()->SetColor(vcl::clRed);
    bitmap.Canvas()->FillRect({0, 0, 80, 60});
    bitmap.Canvas()->Brush()->SetColor(vcl::clLime);
    bitmap.Canvas()->FillRect({40, 0, 80, 60});
    bitmap.SetTransparentColor(vcl::clLime);
    bitmap.SetTransparent(true);
    Screen->Picture()->Assign(&bitmap);
  }
  HWND Window() const { return ::FindWindowW(nullptr, L"Loading"); }
  /// The pixel as 0xAARRGGBB, whichever way the rows lie.
  static DWORD At(int x, int y) {
    return Last.Pixels[static_cast<std::size_t>(y * Last.Width + x)];
  }

  const TImportPatch Patch{"qel.dll", "UpdateLayeredWindow", &Keep};
  std::unique_ptr<TQELSplashScreen> Screen = std::make_unique<TQELSplashScreen>(nullptr);
};

/// The program's main form, once in all of them.
vcl::TForm& MainForm() {
  if (!vcl::Application()->MainForm()) vcl::Application()->CreateForm<vcl::TForm>();
  return dynamic_cast<vcl::TForm&>(*vcl::Application()->MainForm());
}

TEST_F(Splash, ShowsItselfWhenItIsReadBeforeThereIsAMainForm) {
  RegisterAll();
  vcl::TForm form(nullptr);
  auto* screen = new TQELSplashScreen(&form);
  screen->SetName("Splash");
  EXPECT_THAT(FormText(&form), testing::Not(testing::HasSubstr("Time")));
  screen->SetMessage("Loading");
  const std::string text = FormText(&form);
  EXPECT_FALSE(screen->Shown());
  {
    vcl::TForm read(nullptr);
    ReadForm(text, &read);
    EXPECT_EQ(FormText(&read), text);
    EXPECT_TRUE(Window());
    EXPECT_TRUE(::IsWindowVisible(Window()));
  }
  EXPECT_FALSE(Window()) << "it goes with its component";
  const vcl::TForm& main = MainForm();
  EXPECT_FALSE(main.Visible());
  MainForm().Show();
  vcl::TForm later(nullptr);
  ReadForm(text, &later);
  EXPECT_FALSE(Window()) << "the program has started";
  MainForm().Hide();
}

TEST_F(Splash, CoversOnlyWhatThePictureDoes) {
  EXPECT_FALSE(Screen->Execute());
  EXPECT_EQ(Screen->LastError(), "There is nothing to show");
  SetPicture();
  ASSERT_TRUE(Screen->Execute());
  const int scale = vcl::Screen()->PixelsPerInch();
  EXPECT_EQ(Last.Width, ::MulDiv(80, scale, 96));
  EXPECT_EQ(At(Last.Width / 4, Last.Height / 2), 0xFFFF0000);
  EXPECT_EQ(At(Last.Width * 3 / 4, Last.Height / 2), 0u);
  const vcl::TRect area = vcl::Screen()->WorkAreaRect();
  EXPECT_EQ(Last.Place.X, area.Left + (area.Width() - Last.Width) / 2);
  for (const int percentage : {-2, 101}) Screen->SetPercentage(percentage);
  EXPECT_EQ(Screen->Percentage(), -1);
  Screen->SetPercentage(50);
  const auto covered = [](DWORD pixel) { return pixel >> 24 == 0xFF; };
  EXPECT_GT(std::ranges::count_if(Last.Pixels, covered), Last.Width * Last.Height / 2);
}

TEST_F(Splash, GoesWhenTheMainFormHasPaintedAndItsTimeIsOver) {
  vcl::TForm& main = MainForm();
  Screen->SetMessage("Loading");
  Screen->SetMinTime(300);
  ASSERT_TRUE(Screen->Execute());
  PumpFor(500);
  EXPECT_TRUE(Screen->Shown()) << "there is nothing else to be seen yet";
  Screen->Execute();
  main.Show();
  PumpFor(150);
  EXPECT_TRUE(Screen->Shown()) << "its time goes on";
  EXPECT_FALSE(::GetForegroundWindow() == Window());
  EXPECT_TRUE(PumpUntil([&] { return !Screen->Shown(); }));
  EXPECT_FALSE(Window());
  Screen->SetMinTime(0);
  Screen->SetFadeTime(300);
  Last.Opacities.clear();
  Screen->Execute();
  EXPECT_TRUE(PumpUntil([&] { return !Screen->Shown(); }));
  EXPECT_GT(Last.Opacities.size(), 3u);
  EXPECT_TRUE(std::ranges::is_sorted(Last.Opacities, std::greater<>()));
  main.Hide();
}

TEST_F(Splash, HonoursTheWishForNoAnimation) {
  BOOL before = TRUE;
  ::SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &before, 0);
  const auto wish = [](BOOL wanted) {
    ::SystemParametersInfoW(SPI_SETCLIENTAREAANIMATION, 0,
                            reinterpret_cast<void*>(static_cast<LONG_PTR>(wanted)), 0);
  };
  wish(FALSE);
  MainForm().Show();
  Screen->SetMessage("Loading");
  Screen->SetFadeTime(60'000);
  Screen->Execute();
  EXPECT_TRUE(PumpUntil([&] { return !Screen->Shown(); }));
  MainForm().Hide();
  wish(before);
}

TEST_F(Splash, NeverStandsBeforeAMessageBox) {
  Screen->SetMinTime(60'000);
  Screen->SetMessage("Loading");
  Screen->Execute();
  testinput::TBoxAnswer box(IDOK, 1, [&] { return !Screen->Shown(); });
  vcl::Application()->MessageBox("Oops", "Starting", MB_OK);
  EXPECT_TRUE(box.Wait());
  EXPECT_FALSE(Screen->Shown());
}

TEST_F(Splash, AClickTakesItAwayWhereItMay) {
  SetPicture();
  Screen->SetMessage("Loading");
  Screen->SetMinTime(60'000);
  Screen->SetClickCloses(false);
  Screen->Execute();
  testinput::Pump();
  const vcl::TPoint red(Last.Place.X + Last.Width / 4, Last.Place.Y + Last.Height / 4);
  testinput::Click(red);
  PumpFor(100);
  EXPECT_TRUE(Screen->Shown());
  Screen->SetClickCloses(true);
  testinput::Click(red);
  EXPECT_TRUE(PumpUntil([&] { return !Screen->Shown(); }));
}

}  // namespace
}  // namespace qel
