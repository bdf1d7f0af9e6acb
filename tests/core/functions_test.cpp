// The shared functions that need Windows: what it says of itself, the user's date formats, and
// small drawing aids.
#include <gmock/gmock.h>

#include <climits>
#include <regex>

#include "qel/qel.h"
#include "tests/support/handles.h"
#include "tests/support/importpatch.h"
#include "tests/vcl/graphics_pixels.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/utf16.h"

using namespace qel;

namespace {

std::string EnvironmentText(const wchar_t* name) {
  wchar_t text[1024] = {};
  ::GetEnvironmentVariableW(name, text, 1024);
  return vcl::ToUtf8(text);
}

TEST(SystemInformation, NamesUserAndComputer) {
  wchar_t name[256] = {};
  DWORD size = 256;
  ASSERT_TRUE(::GetUserNameW(name, &size));
  EXPECT_EQ(QELGetUsrName(), vcl::ToUtf8(name));
  EXPECT_NE(QELGetUsrName(), "");
  EXPECT_EQ(QELGetPCName(), EnvironmentText(L"COMPUTERNAME"));
}

TEST(SystemInformation, IsTheSystems) {
  const std::pair<int, const char*> cases[] = {
      {inProcessor, "Intel (386|486|Pentium)"},
      {inPlatform, "Windows NT"},
      {inVersion, "[0-9]+\\.[0-9]+"},
      {inMemorySize, "[1-9][0-9]* KB"},
      {inMemoryFree, "[1-9][0-9]* KB"},
      {inMemoryLoad, "[0-9]+ Percent"},
      {inDiskSize, "[1-9][0-9]* MB"},
      {inDiskFree, "[0-9]+ MB"},
      {inDiskLoad, "[0-9]+ %"},
  };
  for (const auto& [item, form] : cases) {
    const std::string text = QELGetInformationNo(item);
    EXPECT_TRUE(std::regex_match(text, std::regex(form))) << item << ": " << text;
  }
  EXPECT_EQ(QELGetInformationNo(inProgramFiles), EnvironmentText(L"ProgramFiles"));
  EXPECT_TRUE(::lstrcmpiA(QELGetInformationNo(inSystemRoot).c_str(),
                          EnvironmentText(L"SystemRoot").c_str()) == 0)
      << QELGetInformationNo(inSystemRoot);
  for (int item : {-1, inDiskLoad + 1, INT_MAX, INT_MIN}) {
    EXPECT_EQ(QELGetInformationNo(item), "") << item;
  }
}

TEST(SystemInformation, IsEmptyWhereTheSystemDoesNotTell) {
  const TImportPatch noUser(
      "qel.dll", "GetUserNameW", +[](LPWSTR, LPDWORD) WINAPI -> BOOL { return FALSE; });
  const TImportPatch noComputer(
      "qel.dll", "GetComputerNameW", +[](LPWSTR, LPDWORD) WINAPI -> BOOL { return FALSE; });
  const TImportPatch noValue(
      "qelhost.dll", "RegQueryValueExW",
      +[](HKEY, LPCWSTR, LPDWORD, LPDWORD, LPBYTE, LPDWORD)
           WINAPI -> LONG { return ERROR_ACCESS_DENIED; });
  const TImportPatch noMemory(
      "qel.dll", "GlobalMemoryStatusEx", +[](LPMEMORYSTATUSEX) WINAPI -> BOOL { return FALSE; });
  const TImportPatch noDisk(
      "qel.dll", "GetDiskFreeSpaceExW",
      +[](LPCWSTR, PULARGE_INTEGER, PULARGE_INTEGER, PULARGE_INTEGER)
           WINAPI -> BOOL { return FALSE; });
  const TImportPatch noVersion(
      "qel.dll", "GetProcAddress", +[](HMODULE, LPCSTR) WINAPI -> FARPROC { return nullptr; });
  const TImportPatch otherProcessor(
      "qel.dll", "GetSystemInfo", +[](LPSYSTEM_INFO info) WINAPI {
        *info = {};
        info->dwProcessorType = 1234;
      });
  EXPECT_EQ(QELGetUsrName(), "");
  EXPECT_EQ(QELGetPCName(), "");
  for (int item = inOrganization; item <= inDiskLoad; ++item) {
    EXPECT_EQ(QELGetInformationNo(item), "") << item;
  }
}

TEST(SystemInformation, TellsSizesBeyond32Bits) {
  const TImportPatch memory(
      "qel.dll", "GlobalMemoryStatusEx", +[](LPMEMORYSTATUSEX status) WINAPI -> BOOL {
        status->dwMemoryLoad = 75;
        status->ullTotalPhys = 1ull << 43;
        status->ullAvailPhys = 1ull << 42;
        return TRUE;
      });
  const TImportPatch disk(
      "qel.dll", "GetDiskFreeSpaceExW",
      +[](LPCWSTR, PULARGE_INTEGER available, PULARGE_INTEGER size, PULARGE_INTEGER free)
           WINAPI -> BOOL {
        available->QuadPart = 1ull << 50;
        size->QuadPart = 1ull << 53;
        free->QuadPart = 1ull << 51;
        return TRUE;
      });
  EXPECT_EQ(QELGetInformationNo(inMemorySize), "8589934592 KB");
  EXPECT_EQ(QELGetInformationNo(inMemoryFree), "4294967296 KB");
  EXPECT_EQ(QELGetInformationNo(inMemoryLoad), "75 Percent");
  EXPECT_EQ(QELGetInformationNo(inDiskSize), "8589934592 MB");
  EXPECT_EQ(QELGetInformationNo(inDiskFree), "1073741824 MB");
  EXPECT_EQ(QELGetInformationNo(inDiskLoad), "75 %");
}

TEST(FormatSettings, WriteWhatTheSystemWrites) {
  const vcl::TFormatSettings settings = vcl::SystemFormatSettings();
  for (const SYSTEMTIME& time :
       {SYSTEMTIME{2003, 4, 6, 5, 15, 6, 7, 0}, SYSTEMTIME{1999, 12, 5, 31, 0, 59, 0, 0}}) {
    wchar_t shortDate[256], longDate[256], longTime[256];
    ::GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, shortDate, 256);
    ::GetDateFormatW(LOCALE_USER_DEFAULT, DATE_LONGDATE, &time, nullptr, longDate, 256);
    ::GetTimeFormatW(LOCALE_USER_DEFAULT, 0, &time, nullptr, longTime, 256);
    const vcl::TDateTime value = vcl::EncodeDate(time.wYear, time.wMonth, time.wDay) +
                                 vcl::EncodeTime(time.wHour, time.wMinute, time.wSecond, 0);
    EXPECT_EQ(vcl::FormatDateTime("ddddd", value, settings), vcl::ToUtf8(shortDate));
    EXPECT_EQ(vcl::FormatDateTime("dddddd", value, settings), vcl::ToUtf8(longDate));
    EXPECT_EQ(vcl::FormatDateTime("tt", value, settings), vcl::ToUtf8(longTime));
  }
}

TEST(FontHeight, IsThatOfALetter) {
  vcl::TFont font;
  for (int height : {-8, -12, -40, 24}) {
    font.SetHeight(height);
    vcl::TBitmap bitmap(1, 1);
    bitmap.Canvas()->SetFont(&font);
    EXPECT_EQ(QELFontHeight(&font), bitmap.Canvas()->TextHeight("W")) << height;
  }
  const int before = handles::GdiObjects();
  for (int i = 0; i < 100; ++i) QELFontHeight(&font);
  EXPECT_EQ(handles::GdiObjects(), before);
  const TImportPatch fails(
      "qel.dll", "GetTextExtentPointW",
      +[](HDC, LPCWSTR, int, LPSIZE) WINAPI -> BOOL { return FALSE; });
  EXPECT_EQ(QELFontHeight(&font), 0);
}

/// A picture with a letter for each pixel: what is drawn on white at (2, 1).
std::vector<std::string> Triangle(bool enabled, bool down, int size, int width, int height) {
  vcl::TBitmap bitmap(width, height);
  bitmap.Canvas()->Pen()->SetWidth(3);
  bitmap.Canvas()->Pen()->SetStyle(vcl::psDot);
  bitmap.Canvas()->Brush()->SetColor(vcl::clAqua);
  bitmap.Canvas()->FillRect({0, 0, width, height});
  QELGetTriangle(bitmap.Canvas(), 2, 1, enabled, down, vcl::clRed, size);
  return vcl::test::Letters(bitmap, {{vcl::clRed, 'r'},
                                     {vcl::TColor(::GetSysColor(COLOR_GRAYTEXT)), 'g'},
                                     {vcl::TColor(::GetSysColor(COLOR_HIGHLIGHTTEXT)), 'h'},
                                     {vcl::clAqua, '.'}});
}

TEST(GetTriangle, PointsUpOrDown) {
  using testing::ElementsAre;
  EXPECT_THAT(Triangle(true, true, 3, 9, 5),
              ElementsAre(".........", "..rrrrr..", "...rrr...", ".........", "........."));
  EXPECT_THAT(Triangle(true, false, 3, 9, 5),
              ElementsAre(".........", "...r.....", "..rrr....", ".rrrrr...", "........."));
  EXPECT_THAT(Triangle(true, true, 2, 7, 3), ElementsAre(".......", "..rrr..", "......."));
  EXPECT_THAT(Triangle(true, false, 2, 7, 4),
              ElementsAre(".......", "...r...", "..rrr..", "......."));
  EXPECT_THAT(Triangle(false, true, 3, 9, 5),
              ElementsAre(".........", "..ggggg..", "...ggghh.", "....hhh..", "........."));
  EXPECT_THAT(Triangle(false, false, 3, 9, 6), ElementsAre(".........", "...g.....", "..ggg....",
                                                           ".ggggg...", "..hhhhh..", "........."));
}

TEST(GetTriangle, HasSizesFrom2To15) {
  for (int size : {-5, 0, 1, 16, 100}) {
    for (const std::string& row : Triangle(false, true, size, 9, 5)) EXPECT_EQ(row, ".........");
  }
  int rows = 0;
  for (const std::string& row : Triangle(true, false, 15, 40, 20))
    rows += row.find('r') != row.npos;
  EXPECT_EQ(rows, 15);
}

}  // namespace
