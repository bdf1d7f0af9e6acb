// Finding texts in a form's components, and replacing them.
#include "qel/design/textplaces.h"

#include "vcl/rtl/collection.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"

namespace qel {

using namespace vcl;

namespace {

/// Where the text is found from a position on; npos for nowhere.
std::size_t Find(const std::string& text, const TQELReplacement& what, std::size_t from) {
  if (what.MatchCase) return text.find(what.Search, from);
  const std::size_t length = what.Search.size();
  for (std::size_t at = from; at + length <= text.size(); ++at) {
    if (SameText(std::string_view(text).substr(at, length), what.Search)) return at;
  }
  return std::string::npos;
}

std::string Replaced(std::string text, const TQELReplacement& what) {
  for (std::size_t at = 0; (at = Find(text, what, at)) != std::string::npos;) {
    text.replace(at, what.Search.size(), what.Text);
    at += what.Text.size();
  }
  return text;
}

/// Collects the texts of one component.
class TCollector {
 public:
  TCollector(TComponent& component, std::vector<TQELTextPlace>& places)
      : FComponent(component), FPlaces(places) {}

  void Add(TObject& object, const std::string& path) {
    for (const TPropInfo* each : object.ClassType().Published()) {
      if (!each->IsEvent()) AddProperty(object, *each, Concat(path, ".", each->Name));
    }
  }

 private:
  void AddProperty(TObject& object, const TPropInfo& property, const std::string& path) {
    const TTypeKind kind = property.Kind();
    if (kind == TTypeKind::String) return AddText(object, property, path);
    if (kind != TTypeKind::Class && kind != TTypeKind::Collection) return;
    if (auto* value = std::get<TObject*>(property.Get(object))) AddObject(*value, path);
  }

  void AddText(TObject& object, const TPropInfo& property, const std::string& path) {
    if (property.ReadOnly() || !property.IsStored(object)) return;
    FPlaces.push_back(
        {&FComponent, path,
         [at = &object, what = &property] { return std::get<std::string>(what->Get(*at)); },
         [at = &object, what = &property](const std::string& text) { what->Set(*at, text); }});
  }

  void AddObject(TObject& object, const std::string& path) {
    if (auto* lines = dynamic_cast<TStrings*>(&object)) {
      FPlaces.push_back({&FComponent, path, [lines] { return lines->Text(); },
                         [lines](const std::string& text) { lines->SetText(text); }});
    } else if (auto* items = dynamic_cast<TCollection*>(&object)) {
      for (int i = 0; i < items->Count(); ++i) {
        Add(*items->Items(i), Concat(path, "[", IntToStr(i), "]"));
      }
    } else {
      Add(object, path);
    }
  }

  TComponent& FComponent;
  std::vector<TQELTextPlace>& FPlaces;
};

}  // namespace

std::vector<TQELTextPlace> PlacesOf(TComponent& root, const TQELReplacement& replacement) {
  std::vector<TQELTextPlace> places;
  if (replacement.Search.empty()) return places;
  TCollector(root, places).Add(root, root.Name());
  for (int i = 0; i < root.ComponentCount(); ++i) {
    TComponent& each = *root.Components(i);
    TCollector(each, places).Add(each, each.Name());
  }
  std::erase_if(places, [&](const TQELTextPlace& each) {
    return Find(each.Get(), replacement, 0) == std::string::npos;
  });
  return places;
}

void ReplaceIn(const std::vector<TQELTextPlace>& places, const TQELReplacement& replacement) {
  std::vector<std::string> former;
  former.reserve(places.size());
  for (const TQELTextPlace& each : places) former.push_back(each.Get());
  std::size_t done = 0;
  const vcl::TOnFailure undo([&] {
    while (done-- > 0) places[done].Set(former[done]);
  });
  for (; done < places.size(); ++done) places[done].Set(Replaced(former[done], replacement));
}

}  // namespace qel
