// The gallery as a program: its pictures, its answers to bad arguments, and its end.
#include <gmock/gmock.h>

#include <sstream>

#include "demos/gallery/galleryform.h"
#include "tests/support/pngpicture.h"
#include "tests/support/program.h"

namespace gallery_test {
namespace {

using testing_support::FileBytes;
using testing_support::Patience;
using testing_support::PngChunks;
using testing_support::TFolder;
using testing_support::TOutputFile;
using testing_support::TPicture;
using testing_support::TProgram;

struct TResult {
  DWORD Code;
  std::string Output;
  std::string Errors;
};

std::string TextOf(const std::filesystem::path& file) {
  const auto bytes = FileBytes(file.string());
  return {bytes.begin(), bytes.end()};
}

TResult RunGallery(const TFolder& folder, const std::wstring& arguments) {
  const auto output = folder.Path / "output", errors = folder.Path / "errors";
  DWORD code;
  {
    const TOutputFile outputFile(output), errorFile(errors);
    code = TProgram(L"gallery", arguments, outputFile.Handle(), errorFile.Handle()).ExitCode();
  }
  return {code, TextOf(output), TextOf(errors)};
}

class Screenshots : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    Folder = std::make_unique<TFolder>();
    const auto pictures = Folder->Path / "made for it" / "pictures";
    Result = RunGallery(*Folder, L"--screenshot \"" + pictures.wstring() + L"\"");
    std::istringstream lines(Result.Output);
    for (std::string line; std::getline(lines, line);) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      Files.push_back(line);
    }
  }
  static void TearDownTestSuite() { Folder.reset(); }

  /// Where a control of the form stands on its pictures.
  static vcl::TRect Place(gallery::TGalleryForm& form, int page, const char* name) {
    form.Pages->SetActivePageIndex(page);
    const auto* control = dynamic_cast<vcl::TControl*>(form.FindComponent(name));
    const vcl::TPoint corner = control->ClientToScreen({0, 0}) - form.ClientToScreen({0, 0});
    return vcl::Bounds(corner.X, corner.Y, control->Width(), control->Height());
  }

  static inline std::unique_ptr<TFolder> Folder;
  static inline TResult Result;
  static inline std::vector<std::string> Files;
};

TEST_F(Screenshots, AreOnePngAPageAndTheirNamesArePrinted) {
  ASSERT_EQ(Result.Code, 0u) << Result.Errors;
  const char* names[] = {"buttons.png",    "labels.png",     "backgrounds.png", "gauges.png",
                         "spin-edits.png", "explorer.png",   "hints.png",       "choices.png",
                         "moving.png",     "pick-lists.png", "standard.png",    "lists.png",
                         "editing.png",    "fields.png",     "dialogs.png",     "system.png",
                         "desktop.png",    "files.png"};
  ASSERT_EQ(Files.size(), std::size(names));
  EXPECT_FALSE(TPicture(Files[0]) == TPicture(Files[1]) ||
               TPicture(Files[1]) == TPicture(Files[2]));
  for (std::size_t i = 0; i < std::size(names); ++i) {
    EXPECT_EQ(std::filesystem::path(Files[i]).filename().string(), names[i]);
    EXPECT_EQ(PngChunks(FileBytes(Files[i])).substr(0, 4), "IHDR");
    const TPicture picture(Files[i]);
    EXPECT_EQ(picture.Width, 968);
    EXPECT_EQ(picture.Height, 661);
    EXPECT_GT(picture.ColorCount(), 30u);
  }
}

TEST_F(Screenshots, ShowAHintOnItsBackgroundAboveTheMouse) {
  ASSERT_GT(Files.size(), 6u);
  gallery::TGalleryForm form(nullptr);
  form.Show();
  const vcl::TRect stage = Place(form, 6, "HintStageField");
  const vcl::TPoint mouse{(stage.Left + stage.Right) / 2, stage.Bottom - 30};
  const TPicture hints(Files[6]);
  const auto blueAt = [&](int x, int y) { return unsigned(hints.At(x, y)) >> 16 & 0xFF; };
  const auto redAt = [&](int x, int y) { return unsigned(hints.At(x, y)) & 0xFF; };
  // The bubble's lower left corner is yellow, the stage beside it white to blue.
  EXPECT_GT(redAt(mouse.X + 5, mouse.Y - 25), blueAt(mouse.X + 5, mouse.Y - 25) + 50);
  EXPECT_LT(redAt(mouse.X - 5, mouse.Y - 25), blueAt(mouse.X - 5, mouse.Y - 25) + 1);
  // Only every other pixel of the shadow is drawn.
  int shaded = 0;
  for (int x = mouse.X + 40; x < mouse.X + 60; ++x)
    shaded += hints.At(x, mouse.Y - 17) == vcl::clGray;
  EXPECT_EQ(shaded, 10);
}

TEST(Program, SaysWhatIsWrongWithItsArguments) {
  const TFolder folder;
  for (const wchar_t* arguments : {L"--screenshot", L"--picture x", L"a b c"}) {
    const TResult result = RunGallery(folder, arguments);
    EXPECT_EQ(result.Code, 2u) << arguments;
    EXPECT_NE(result.Errors.find("Usage"), std::string::npos) << result.Errors;
    EXPECT_EQ(result.Output, "");
  }
  // A file where a folder should be, which RunGallery makes, can't be saved in.
  const auto file = folder.Path / "output";
  const TResult result = RunGallery(folder, L"--screenshot \"" + file.wstring() + L"\"");
  EXPECT_EQ(result.Code, 1u);
  EXPECT_NE(result.Errors.find("output"), std::string::npos) << result.Errors;
}

/// The program's window with that title; null while there is none.
HWND WindowOf(DWORD process, const wchar_t* title) {
  for (HWND window = nullptr;
       (window = ::FindWindowExW(nullptr, window, nullptr, title)) != nullptr;) {
    DWORD owner = 0;
    ::GetWindowThreadProcessId(window, &owner);
    if (owner == process && ::IsWindowVisible(window)) return window;
  }
  return nullptr;
}

TEST(Program, EndsWhenItsWindowIsClosed) {
  const TFolder folder;
  const TOutputFile output(folder.Path / "output");
  const TProgram program(L"gallery", {}, output.Handle(), output.Handle());
  HWND window = nullptr;
  const ULONGLONG end = ::GetTickCount64() + Patience;
  while (!window && ::GetTickCount64() < end) {
    window = WindowOf(program.ProcessId(), L"Gallery of painted components");
    if (!window) ::Sleep(20);
  }
  ASSERT_NE(window, nullptr);
  ::PostMessageW(window, WM_CLOSE, 0, 0);
  EXPECT_EQ(program.ExitCode(), 0u);
}

}  // namespace
}  // namespace gallery_test
