// TQELDBSpinEdit: the field's number as a text, and back.
#include "qel/dbcontrols/Qeltdbspinedit.h"

#include "vcl/rtl/properties.h"

namespace qel {

namespace {

bool IsWhole(vcl::TFieldType kind) {
  return kind == vcl::ftSmallint || kind == vcl::ftInteger || kind == vcl::ftLargeint;
}

TQELRealSigns SignsOf(TQELRealFormat format) { return QELRealSigns(format == rfCurrency); }

}  // namespace

const vcl::TClass& TQELDBSpinEdit::Class() {
  using T = TQELDBSpinEdit;
  using namespace vcl;
  static const TClass info = Describe<T, TQELRealSpinEdit>(
      "qel::TQELDBSpinEdit", "qel/dbcontrols/Qeltdbspinedit.h",
      {
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Property<&T::Decimals, &T::SetDecimals>("Decimals").Default(2),
          Property<&T::Format, &T::SetFormat>("Format").Default(rfFixed),
          Property<&T::ReadOnly, &T::SetReadOnly>("Readonly").Default(false),
          vcl::ReadOnly<&T::Value>("Value"),
      });
  return info;
}

TQELDBSpinEdit::TQELDBSpinEdit(vcl::TComponent* owner) : TQELFieldEdit(owner) {
  Link().Reset();
  HearOnlyAsked<TQELDBSpinEdit>();
}

void TQELDBSpinEdit::Loaded() {
  const vcl::TWatch watch(this);
  TQELFieldEdit::Loaded();
  if (!watch.Gone()) Link().Reset();
}

void TQELDBSpinEdit::SetDecimals(int decimals) {
  constexpr int most = 15;
  if (decimals < 0 || decimals > most) return;
  FDecimals = decimals;
  Link().Reset();
}

void TQELDBSpinEdit::SetFormat(TQELRealFormat format) {
  FFormat = format;
  Link().Reset();
}

// What is shown.

bool TQELDBSpinEdit::Fits(vcl::TFieldType kind) const {
  return IsWhole(kind) || kind == vcl::ftFloat || kind == vcl::ftCurrency || kind == vcl::ftBCD;
}

int TQELDBSpinEdit::ShownDecimals() const {
  const vcl::TFieldType kind = Field() ? Field()->DataType() : vcl::ftUnknown;
  if (IsWhole(kind)) return 0;
  return kind == vcl::ftCurrency ? 2 : FDecimals;
}

std::string TQELDBSpinEdit::ShownText(const vcl::TField& field) const {
  if (field.IsNull()) return {};
  return QELRealText(field.AsFloat(), FFormat, ShownDecimals(), SignsOf(FFormat));
}

void TQELDBSpinEdit::ShowField() {
  // The steps are made with what the ancestor has; it writes a number when that is set.
  if (TQELRealSpinEdit::Format() != FFormat) TQELRealSpinEdit::SetFormat(FFormat);
  if (TQELRealSpinEdit::Decimals() != ShownDecimals()) {
    TQELRealSpinEdit::SetDecimals(ShownDecimals());
  }
  TQELFieldEdit::ShowField();
}

// What is written.

void TQELDBSpinEdit::WriteField() {
  const std::string text = Text();
  if (text.empty()) return Field()->Clear();
  // The field says what it refuses of a text that is no number.
  if (!QELTextReal(text, SignsOf(FFormat))) return Field()->SetAsString(text);
  const vcl::TWatch watch(this);
  TQELRealSpinEdit::CorrectText();
  if (!watch.Gone() && Field()) Field()->SetAsFloat(Value());
}

void TQELDBSpinEdit::Step(int times) {
  if (EditField()) TQELFieldEdit::Step(times);
}

void TQELDBSpinEdit::StepPage(int times) {
  if (EditField()) TQELFieldEdit::StepPage(times);
}

void TQELDBSpinEdit::KeyPress(char32_t& key) {
  const vcl::TWatch watch(this);
  // The ancestor gives Enter to the form's default button, which is to find the record written.
  if (key == vcl::detail::EnterCharacter) Link().UpdateRecord();
  if (!watch.Gone()) TQELFieldEdit::KeyPress(key);
}

}  // namespace qel
