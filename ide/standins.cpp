// The stand-in for an unknown control, and making stand-ins while a form is read.
#include "ide/standins.h"

#include "ide/ancestors.h"
#include "ide/formlinks.h"
#include "vcl/forms/frames.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

const TClass& TStandInControl::Class() {
  // The class itself publishes nothing but its place, which is what every control's file gives.
  static const TClass info =
      Describe<TStandInControl, TCustomControl>("ide::TStandInControl", "ide/standins.h", {});
  return info;
}

const TClass& TStandInComponent::Class() {
  static const TClass info =
      Describe<TStandInComponent, TComponent>("ide::TStandInComponent", "ide/standins.h", {});
  return info;
}

TStandInControl::TStandInControl(TComponent* owner) : TCustomControl(owner) {
  SetControlStyle(TControlStyle{csCaptureMouse, csClickEvents, csOpaque});
  SetColor(clWhite);
}

void TStandInControl::Paint() {
  const TRect inside = ClientRect();
  TCanvas& canvas = *Canvas();
  canvas.Brush()->SetColor(clSilver);
  canvas.Brush()->SetStyle(bsFDiagonal);
  canvas.Pen()->SetColor(clRed);
  canvas.Rectangle(inside);
  canvas.Brush()->SetStyle(bsClear);
  canvas.Font()->SetColor(clMaroon);
  canvas.TextOut(4, 4, Concat(Name(), ": ", FileClassName()));
}

void TFormKeeper::Report(const std::string& message) {
  if (OnProblem) OnProblem(message);
}

TComponent* TFormKeeper::MakeStandIn(TComponent* owner, bool visual) {
  if (visual) return new TStandInControl(owner);
  return new TStandInComponent(owner);
}

TComponent* TFormKeeper::MakeFrame(const std::string& className, TComponent* owner) {
  if (GetClass(className)) return nullptr;
  constexpr int deepest = 20;
  if (FDepth >= deepest) throw EReadError(Concat("The frame ", className, " stands inside itself"));
  const vcl::TSetFor deeper(FDepth, FDepth + 1);
  const TAncestorFile file = FindFormFile(Folder, className, "The form");
  auto frame = std::make_unique<TFrame>(owner);
  if (!owner) frame->SetDesigning(true);
  TFormOrigin origin = OriginOf(file.FileName, file.Bytes);
  origin.Files.push_back(file);
  for (const TAncestorFile& each : origin.Files) {
    TStringStream stream(each.Bytes);
    ReadComponentFile(stream, frame.get(), each.FileName, this);
  }
  return frame.release();
}

std::unique_ptr<TComponent> TFormKeeper::Pristine(const TComponent& frame) const {
  const auto make = frame.ClassType().Maker().Component;
  TFormKeeper quiet;
  quiet.Folder = Folder;
  try {
    TComponent* made = quiet.MakeFrame(frame.FileClassName(), nullptr);
    return std::unique_ptr<TComponent>(made || !make ? made : make(nullptr));
  } catch (const Exception&) {
    return nullptr;  // Its file has gone since it was read: the form keeps the frame whole.
  }
}

TComponent* TFormKeeper::FindForm(std::string_view name) const {
  return Others ? FindByFullName(Others(), name) : nullptr;
}

bool IsStandIn(const TComponent& component) {
  return dynamic_cast<const TStandInControl*>(&component) ||
         dynamic_cast<const TStandInComponent*>(&component);
}

}  // namespace ide
