// Measuring a form of many controls against the system's plain windows.
#include "bench/forms.h"

#include <memory>
#include <string>
#include <vector>

#include "bench/timing.h"
#include "qel/controls/Qeltbutton.h"
#include "qel/controls/Qeltlabel.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/win32.h"

namespace bench {

namespace {

constexpr int Controls = 1000;
constexpr int Columns = 25;
constexpr int Width = 40;
constexpr int Height = 18;

/// The kinds of controls that the form has in turn, and the system's window class that the plain
/// windows of the comparison have in the same place; a control without a window has none.
struct TKind {
  const char* Class;
  const char* Window;
};
constexpr TKind Kinds[] = {
    {"TQELButton", "BUTTON"}, {"TQELLabel", nullptr}, {"TEdit", "EDIT"}, {"TCheckBox", "BUTTON"}};

const TKind& KindOf(int control) { return Kinds[control % std::size(Kinds)]; }
int LeftOf(int control) { return control % Columns * Width; }
int TopOf(int control) { return control / Columns * Height; }

std::string Line(const char* property, int value) {
  return std::string("    ") + property + " = " + std::to_string(value) + "\n";
}

/// The form file in its binary form, as a program would embed it.
std::string Binary(const std::string& text) {
  vcl::TStringStream source(text);
  vcl::TStringStream binary;
  vcl::ObjectTextToBinary(source, binary);
  return binary.DataString();
}

constexpr const char* Heading = "object Form: TForm\n  ClientWidth = 1000\n  ClientHeight = 720\n";

std::string FormFile(int controls) {
  std::string text = Heading;
  for (int i = 0; i < controls; ++i) {
    text += "  object Control" + std::to_string(i) + ": " + KindOf(i).Class + "\n";
    text += Line("Left", LeftOf(i)) + Line("Top", TopOf(i)) + Line("Width", Width) +
            Line("Height", Height) + "  end\n";
  }
  return Binary(text + "end\n");
}

std::string LabelsFile(int labels) {
  std::string text = Heading;
  for (int i = 0; i < labels; ++i) {
    text += "  object Label" + std::to_string(i) + ": TLabel\n";
    text += Line("Left", LeftOf(i)) + Line("Top", TopOf(i)) + "    Caption = 'Label'\n  end\n";
  }
  return Binary(text + "end\n");
}

void ReadForm(const std::string& file) {
  vcl::TForm form(nullptr);
  vcl::TStringStream stream(file);
  vcl::ReadComponentFile(stream, &form);
}

/// To 144 dots per inch and back: two scalings.
void ScaleForm(vcl::TForm& form) {
  for (const int pixels : {144, 96}) {
    form.ScaleForPPI(pixels);
    form.Update();
  }
}

void MakeForm(const std::string& file) {
  vcl::TForm form(nullptr);
  vcl::TStringStream stream(file);
  vcl::ReadComponentFile(stream, &form);
  form.Show();
  form.Update();
}

/// What plain windows leave out of what is painted: a form's leave out those inside, and those
/// inside their siblings, so that nothing is painted over.
struct TClipping {
  DWORD Around;
  DWORD Inside;
};

void MakeWindows(TClipping clipping) {
  const HWND window = ::CreateWindowExA(0, "STATIC", "", WS_OVERLAPPEDWINDOW | clipping.Around, 0,
                                        0, 1000, 720, nullptr, nullptr, nullptr, nullptr);
  for (int i = 0; i < Controls; ++i) {
    if (!KindOf(i).Window) continue;
    ::CreateWindowExA(0, KindOf(i).Window, "", WS_CHILD | WS_VISIBLE | clipping.Inside, LeftOf(i),
                      TopOf(i), Width, Height, window, nullptr, nullptr, nullptr);
  }
  ::ShowWindow(window, SW_SHOW);
  ::UpdateWindow(window);
  ::DestroyWindow(window);
}

void Making() {
  const std::string file = FormFile(Controls);
  const auto make = [&] { MakeForm(file); };
  TTable table(
      "A form file of 1,000 controls, against 750 plain windows",
      "250 each of button, label (which has no window), edit and check box: made, shown and "
      "freed; the plain windows are made and shown by the system's calls alone. The least of 15 "
      "rounds. Aim: at most 1.15.",
      {"clipping as a form's windows do", "clipping nothing"});
  table.Add("TForm", {CompareLeast(make,
                                   [] {
                                     MakeWindows({WS_CLIPCHILDREN, WS_CLIPSIBLINGS});
                                   }),
                      CompareLeast(make, [] { MakeWindows({}); })});
}

void Reading() {
  const std::string many = LabelsFile(4000);
  const std::string few = LabelsFile(1000);
  TTable table("A form file of 4,000 labels, against 1,000",
               "Read and freed, never shown; the least of 15 rounds. Aim: at most 5.",
               {"read, freed"});
  table.Add("TLabel", {CompareLeast([&] { ReadForm(many); }, [&] { ReadForm(few); })});
}

void Scaling() {
  const std::string half = FormFile(Controls / 2);
  vcl::TForm shown(nullptr);
  vcl::TStringStream stream(half);
  vcl::ReadComponentFile(stream, &shown);
  shown.Show();
  shown.Update();
  TTable table("A form of 500 controls scaled, against making it",
               "From 96 dots per inch to 144 and back, painted each time; two made, shown and "
               "freed. The least of 15 rounds. Aim: at most 0.5.",
               {"scaled"});
  const auto makeTwo = [&] {
    MakeForm(half);
    MakeForm(half);
  };
  table.Add("TForm", {CompareLeast([&] { ScaleForm(shown); }, makeTwo)});
}

}  // namespace

void Forms() {
  vcl::RegisterStandardClasses();
  vcl::RegisterClasses({&qel::TQELButton::Class(), &qel::TQELLabel::Class()});
  Making();
  Reading();
  Scaling();
}

}  // namespace bench
