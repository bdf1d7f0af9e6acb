// Listing what a form consists of.
#include "ide/structurelines.h"

#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace ide {

using vcl::Concat;
using vcl::TPersistent;

namespace {

constexpr int MostInside = 4;  // Objects in objects; they might hold each other.

class TLister {
 public:
  explicit TLister(vcl::TComponent& root) { AddComponent(root, root, 0); }
  std::vector<TStructureLine> Lines;

 private:
  /// `owner` owns what stands inside: the root or a frame.
  void AddComponent(vcl::TComponent& component, vcl::TComponent& owner, int depth) {
    const std::string text = Concat(component.Name(), ": ", component.FileClassName());
    Lines.push_back({depth, text, &component, nullptr, {}, component.Name()});
    AddCollections(component, component.Name(), depth + 1, 0);
    vcl::TComponent& inside = component.Inline() ? component : owner;
    component.GetChildren([&](vcl::TComponent* child) { AddComponent(*child, inside, depth + 1); },
                          &inside);
  }

  /// The collections among the object's properties, and in the objects behind them.
  void AddCollections(TPersistent& object, const std::string& path, int depth, int inside) {
    for (const vcl::TPropInfo* property : object.ClassType().Published()) {
      const bool collection = property->Kind() == vcl::TTypeKind::Collection;
      if (property->IsEvent() || !(collection || property->Kind() == vcl::TTypeKind::Class))
        continue;
      vcl::TObject* value = std::get<vcl::TObject*>(property->Get(object));
      const std::string name = Concat(path, ".", property->Name);
      if (auto* items = dynamic_cast<vcl::TCollection*>(value)) {
        Lines.push_back({depth, property->Name, &object, items, property->Name, name});
        AddItems(*items, name, depth + 1, inside);
      } else if (auto* part = dynamic_cast<TPersistent*>(value); part && inside < MostInside) {
        AddCollections(*part, name, depth, inside + 1);
      }
    }
  }

  void AddItems(vcl::TCollection& items, const std::string& path, int depth, int inside) {
    for (int i = 0; i < items.Count(); ++i) {
      vcl::TCollectionItem& item = *items.Items(i);
      const std::string index = vcl::IntToStr(i);
      const std::string name = Concat(path, "[", index, "]");
      Lines.push_back({depth, Concat(index, " - ", item.DisplayName()), &item, nullptr, {}, name});
      if (inside < MostInside) AddCollections(item, name, depth + 1, inside + 1);
    }
  }
};

}  // namespace

std::vector<TStructureLine> StructureOf(vcl::TComponent& root) { return TLister(root).Lines; }

}  // namespace ide
