// Measuring data-aware controls: the index lookup against plain loops, and a grid with ten controls
// beside it against edits of the system that show the same.
#include "bench/fields.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/timing.h"
#include "qel/dbcontrols/Qeltdbindexlookup.h"
#include "qel/dbcontrols/Qeltdbofficeedit.h"
#include "vcl/db/datasource.h"
#include "vcl/db/memorydataset.h"
#include "vcl/dbctrls/dbedit.h"
#include "vcl/dbctrls/dbgrids.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace bench {

namespace {

// Going to records by what is typed.

constexpr int Customers = 100'000;

std::string NameOf(int customer) {
  const std::string number = std::to_string(customer * 7919 % Customers + Customers);
  return "Customer " + number;
}

/// The place of the first name that begins so, but for case.
std::size_t FirstOf(const std::vector<std::string>& names, const std::string& start) {
  const auto same = [](char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) ==
           std::tolower(static_cast<unsigned char>(b));
  };
  const auto begins = [&](const std::string& name) {
    return std::ranges::mismatch(name, start, same).in2 == start.end();
  };
  return static_cast<std::size_t>(std::ranges::find_if(names, begins) - names.begin());
}

/// Goes to a hundred names all over the records, as the last letter of each is typed.
TPair GoToNames(bool ordered) {
  vcl::TMemoryDataSet data(nullptr);
  data.FieldDefs()->Add("Name", vcl::ftString);
  data.Open();
  std::vector<std::string> names;
  for (int i = 0; i < Customers; ++i) {
    names.push_back(NameOf(i));
    data.AppendRecord({names.back()});
  }
  if (ordered) data.SetIndexFieldNames("Name");
  vcl::TDataSource source(nullptr);
  source.SetDataSet(&data);
  vcl::TForm form(nullptr);
  qel::TQELDBIndexLookup lookup(&form);
  lookup.SetParent(&form);
  lookup.SetDataSource(&source);
  lookup.SetDataField("Name");
  volatile std::size_t sum = 0;
  constexpr int typed = 100;
  const auto each = [](const auto& go) {
    for (int i = 0; i < typed; ++i) go(NameOf(i * (Customers / typed) + 1));
  };
  return Compare(
      [&] {
        each([&](const std::string& name) {
          if (!lookup.Find(name)) throw std::runtime_error("There is no " + name);
        });
      },
      [&] { each([&](const std::string& name) { sum = sum + FirstOf(names, name); }); });
}

// A grid beside ten controls.

constexpr int Records = 10'000;
constexpr int Counted = 1000;  // Of them.
constexpr int Timed = 20;
constexpr int Controls = 10;

int paintings = 0;  // Of the counted controls.

/// A control whose paintings are counted.
template <class T>
class TCounted : public T {
 public:
  using T::T;

 protected:
  void Dispatch(vcl::TMessage& message) override {
    if (message.Msg == WM_PAINT) ++paintings;
    T::Dispatch(message);
  }
};

class TRecordForm {
 public:
  TRecordForm() {
    Data.FieldDefs()->Add("Id", vcl::ftInteger);
    Data.FieldDefs()->Add("Name", vcl::ftString);
    Data.Open();
    for (int i = 0; i < Records; ++i) Data.AppendRecord({std::int64_t{i}, NameOf(i)});
    Source.SetDataSet(&Data);
    FForm.SetBounds(0, 0, 700, 500);
    auto* grid = new vcl::TDBGrid(&FForm);
    grid->SetParent(&FForm);
    grid->SetBounds(0, 0, 400, 460);
    grid->SetDataSource(&Source);
    for (int i = 0; i < Controls; ++i)
      i % 2 == 0 ? Add<vcl::TDBEdit>(i) : Add<qel::TQELDBOfficeEdit>(i);
    FForm.Show();
    FForm.Update();
  }
  TRecordForm(const TRecordForm&) = delete;
  TRecordForm& operator=(const TRecordForm&) = delete;

  void Scroll(int records) {
    Data.First();
    FForm.Update();
    for (int i = 1; i < records; ++i) {
      Data.Next();
      Update();
    }
  }

 private:
  template <class T>
  void Add(int index) {
    auto* control = new TCounted<T>(&FForm);
    control->SetParent(&FForm);
    control->SetBounds(420, 10 + index * 30, 250, 22);
    control->SetDataSource(&Source);
    control->SetDataField("Name");
    FControls[static_cast<std::size_t>(index)] = control;
  }
  void Update() {
    for (vcl::TWinControl* control : FControls) control->Update();
    FForm.Update();
  }

  vcl::TMemoryDataSet Data{nullptr};
  vcl::TDataSource Source{nullptr};
  vcl::TForm FForm{nullptr};
  std::array<vcl::TWinControl*, Controls> FControls{};
};

/// The same without records: a list of the system that is scrolled, and edits that are given texts.
class TPlainForm {
 public:
  TPlainForm() {
    FForm.SetBounds(0, 0, 700, 500);
    FForm.Show();
    const auto make = [this](const wchar_t* name, DWORD style, int x, int y, int width,
                             int height) {
      return ::CreateWindowExW(0, name, L"", WS_CHILD | WS_VISIBLE | WS_BORDER | style, x, y, width,
                               height, FForm.Handle(), nullptr, nullptr, nullptr);
    };
    FList = make(L"LISTBOX", WS_VSCROLL, 0, 0, 400, 460);
    for (int i = 0; i < Records; ++i)
      ::SendMessageA(FList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(NameOf(i).c_str()));
    for (int i = 0; i < Controls; ++i)
      FEdits.push_back(make(L"EDIT", 0, 420, 10 + i * 30, 250, 22));
    FForm.Update();
  }
  TPlainForm(const TPlainForm&) = delete;
  TPlainForm& operator=(const TPlainForm&) = delete;

  void Scroll() {
    for (int i = 0; i < Timed; ++i) {
      ::SendMessageW(FList, LB_SETCURSEL, static_cast<WPARAM>(i), 0);
      ::UpdateWindow(FList);
      for (const HWND edit : FEdits) {
        ::SetWindowTextA(edit, NameOf(i).c_str());
        ::UpdateWindow(edit);
      }
    }
  }

 private:
  vcl::TForm FForm{nullptr};
  HWND FList = nullptr;
  std::vector<HWND> FEdits;
};

TPair ScrollRecords() {
  TPlainForm plain;
  TRecordForm ours;
  return CompareLeast([&] { ours.Scroll(Timed); }, [&] { plain.Scroll(); });
}

/// How often each control is painted for a record, with two decimals.
std::string PaintingsOfARecord() {
  TRecordForm form;
  paintings = 0;
  form.Scroll(Counted);
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "%.2f", 1.0 * paintings / Counted / Controls);
  return text.data();
}

}  // namespace

void Fields() {
  TTable lookup("An index lookup over 100,000 records, against a plain loop over the texts",
                "A hundred names gone to, each of them the first that begins so.", {"100 names"});
  lookup.Add("TQELDBIndexLookup, in the order of its field", {GoToNames(true)});
  lookup.Add("TQELDBIndexLookup, in no order", {GoToNames(false)});

  TTable scrolled(
      "A grid beside ten data-aware controls, scrolled through 10,000 records",
      vcl::Concat("20 records, against a list and ten edits of the system with the same texts. "
                  "Each of 1,000 records paints each control ",
                  PaintingsOfARecord(), " times; aim: 1."),
      {"20"});
  scrolled.Add("TDBGrid, TDBEdit, TQELDBOfficeEdit", {ScrollRecords()});
}

}  // namespace bench
