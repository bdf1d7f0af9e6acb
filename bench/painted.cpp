// Measuring the package's controls: lookups between two keys, movement as a share of one processor,
// and check boxes against the system's.
#include "bench/painted.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/timing.h"
#include "qel/controls/Qeltanimator.h"
#include "qel/controls/Qeltcheckbox.h"
#include "qel/controls/Qeltlookupedit.h"
#include "qel/controls/Qeltpresentation.h"
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/win32.h"

namespace bench {

namespace {

void Require(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(std::string("What is measured is not there: ") + what);
}

// Lookups.

constexpr int Items = 100'000;
/// The keyboard's quickest repeat, in milliseconds.
constexpr double BetweenKeys = 1000.0 / 30;

TPair LookUp(bool contains) {
  vcl::TForm form(nullptr);
  qel::TQELLookupEdit edit(&form);
  edit.SetParent(&form);
  edit.SetMatchContains(contains);
  for (int i = 0; i < Items; ++i) edit.Items()->Add("Customer " + std::to_string(i * 7919 % Items));
  form.Show();
  edit.SetFocus();
  Require(edit.Focused(), "the focus");
  edit.SetText(contains ? "omer 1" : "Customer 1");
  edit.SetSelStart(static_cast<int>(edit.Text().size()));
  const auto key = [&edit](WPARAM code) {
    ::SendMessageW(edit.Handle(), WM_CHAR, code, 0);
    edit.Update();
  };
  const auto twoKeys = [&] { key('2'), key(VK_BACK); };
  twoKeys();
  Require(edit.DroppedDown(), "the list");
  return {Compare(twoKeys, [] {}).Ours / 2, BetweenKeys};
}

// Movement.

constexpr double Watched = 2000;  // Milliseconds.

double ProcessorTime() {
  FILETIME times[4];
  ::GetProcessTimes(::GetCurrentProcess(), &times[0], &times[1], &times[2], &times[3]);
  const auto milliseconds = [](const FILETIME& time) {
    return static_cast<double>(static_cast<std::uint64_t>(time.dwHighDateTime) << 32 |
                               time.dwLowDateTime) /
           10'000;
  };
  return milliseconds(times[2]) + milliseconds(times[3]);
}

/// The processor time that is used, and the time that passes, while the program waits for input.
TPair Share() {
  const double before = ProcessorTime();
  const ULONGLONG begin = ::GetTickCount64();
  while (static_cast<double>(::GetTickCount64() - begin) < Watched) {
    vcl::Application()->ProcessMessages();
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
  return {ProcessorTime() - before, static_cast<double>(::GetTickCount64() - begin)};
}

TPair Fade(qel::TQELSlideEffect effect) {
  vcl::TForm form(nullptr);
  form.SetBorderStyle(vcl::bsNone);
  form.SetBounds(0, 0, 1024, 768);
  qel::TQELPresentation slides(&form);
  slides.SetParent(&form);
  slides.SetAlign(vcl::alClient);
  slides.SetEffectTime(static_cast<int>(Watched) + 500);
  for (const vcl::TColor color : {vcl::clNavy, vcl::clTeal}) {
    vcl::TBitmap picture;
    picture.Canvas()->Brush()->SetColor(color);
    picture.SetSize(1024, 768);
    qel::TQELSlide* slide = slides.Slides()->Add();
    slide->Picture()->Assign(&picture);
    slide->SetEffect(effect);
  }
  form.Show();
  form.Update();
  slides.SetSlideIndex(1);
  return Share();
}

TPair Animate(int count) {
  constexpr int side = 32;
  constexpr int frames = 8;
  vcl::TBitmap strip;
  strip.SetSize(side * frames, side);
  for (int i = 0; i < frames; ++i) strip.Canvas()->Ellipse(side * i, 0, side * i + 4 * i + 2, side);
  vcl::TForm form(nullptr);
  form.SetBounds(0, 0, 600, 300);
  std::vector<std::unique_ptr<qel::TQELAnimator>> animators;
  for (int i = 0; i < count; ++i) {
    auto& animator = animators.emplace_back(std::make_unique<qel::TQELAnimator>(nullptr));
    animator->SetParent(&form);
    animator->SetBounds(i % 10 * 50 + 10, i / 10 * 50 + 10, side, side);
    animator->SetStrip(&strip);
    animator->SetFrameCount(frames);
    animator->SetInterval(40);
    animator->SetActive(true);
  }
  form.Show();
  form.Update();
  return Share();
}

// Check boxes.

constexpr int Boxes = 300;

vcl::TRect BoxPlace(int i) { return vcl::Bounds(i % 10 * 80 + 4, i / 10 * 20 + 4, 78, 18); }

void PaintAll(HWND window) {
  ::RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

TPair CheckBoxes() {
  vcl::TForm ours(nullptr);
  vcl::TForm theirs(nullptr);
  ours.SetBounds(0, 0, 830, 660);
  theirs.SetBounds(0, 0, 830, 660);
  for (int i = 0; i < Boxes; ++i) {
    const vcl::TRect place = BoxPlace(i);
    auto* box = new qel::TQELCheckbox(&ours);
    box->SetParent(&ours);
    box->SetBounds(place.Left, place.Top, place.Width(), place.Height());
    box->SetCaption("Check " + std::to_string(i));
    const HWND window = ::CreateWindowExA(0, "BUTTON", ("Check " + std::to_string(i)).c_str(),
                                          WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | BS_AUTOCHECKBOX,
                                          place.Left, place.Top, place.Width(), place.Height(),
                                          theirs.Handle(), nullptr, nullptr, nullptr);
    ::SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)),
                   FALSE);
  }
  // Each is the foremost while it paints, so that nothing is clipped away.
  ours.Show();
  theirs.Show();
  const auto paint = [](vcl::TForm& form) {
    form.BringToFront();
    PaintAll(form.Handle());
  };
  return Compare([&] { paint(ours); }, [&] { paint(theirs); });
}

}  // namespace

void Painted() {
  TTable lookup("100,000 items filtered by a lookup edit, against the time between two keys",
                "A key and the one that takes it back, the list painted: half of both, against a "
                "thirtieth of a second. Aim: below 1.",
                {"a key"});
  lookup.Add("TQELLookupEdit, from the start", {LookUp(false)});
  lookup.Add("TQELLookupEdit, anywhere", {LookUp(true)});

  TTable fade("A presentation of 1024 × 768 pixels between two slides, as a share of one processor",
              "For two seconds.", {"share"});
  fade.Add("Fade", {Fade(qel::seFade)});
  fade.Add("Dissolve", {Fade(qel::seDissolve)});

  TTable animated("Animated controls on one form, as a share of one processor",
                  "25 frames a second, for two seconds. One timer moves them all.", {"share"});
  animated.Add("1 TQELAnimator", {Animate(1)});
  animated.Add("50 TQELAnimator", {Animate(50)});

  TTable boxes("300 check boxes painted, against 300 of the system's", "", {"300"});
  boxes.Add("TQELCheckbox", {CheckBoxes()});
}

}  // namespace bench
