// Reading and writing the tools' settings in the registry.
#include "qel/design/toolsettings.h"

#include "qel/core/Qeltstoredata.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"

namespace qel {

using namespace vcl;

namespace {

/// Where a list is kept: the value that holds its length, and what its entries' values begin with.
struct TListPlace {
  std::vector<TQELToolLink> TQELToolSettings::*List;
  const char* Count;
  const char* Prefix;
};
constexpr TListPlace Lists[] = {
    {&TQELToolSettings::Files, "MenuICount", "MenuI"},
    {&TQELToolSettings::Links, "HttpICount", "HttpI"},
};

constexpr struct {
  std::string TQELToolSettings::*Text;
  const char* Ident;
} Texts[] = {
    {&TQELToolSettings::HomePage, "HomePage"},
    {&TQELToolSettings::Mail, "Mail"},
    {&TQELToolSettings::Pager, "Pager"},
};

constexpr const char* AutoSaveIdent = "AutoSave";

/// A count beyond this is no list that somebody has typed.
constexpr int MaxEntries = 1000;

class TSettingsStore : public TQELDataStore {
 public:
  TSettingsStore() {
    Registry()->SetPath("Software\\QEL\\Designer");
    Registry()->SetSection("Tools");
    SetErrorStr("");
  }
};

std::string Ident(const TListPlace& place, std::size_t index, const char* part) {
  return Concat(place.Prefix, IntToStr(static_cast<std::int64_t>(index)), part);
}

}  // namespace

TQELToolSettings LoadToolSettings() {
  TSettingsStore store;
  TQELToolSettings settings;
  for (const auto& [text, ident] : Texts) settings.*text = store.ReadStr(ident);
  settings.AutoSave = store.ReadInt(AutoSaveIdent);
  for (const TListPlace& place : Lists) {
    const int count = std::min(store.ReadInt(place.Count), MaxEntries);
    for (int i = 0; i < count; ++i) {
      const auto index = static_cast<std::size_t>(i);
      (settings.*place.List)
          .push_back({store.ReadStr(Ident(place, index, "Caption")),
                      store.ReadStr(Ident(place, index, "Target"))});
    }
  }
  return settings;
}

void SaveToolSettings(const TQELToolSettings& settings) {
  TSettingsStore store;
  store.Erase();
  for (const auto& [text, ident] : Texts) store.WriteStr(ident, settings.*text);
  store.WriteInt(AutoSaveIdent, settings.AutoSave);
  for (const TListPlace& place : Lists) {
    const auto& list = settings.*place.List;
    for (std::size_t i = 0; i < list.size(); ++i) {
      store.WriteStr(Ident(place, i, "Caption"), list[i].Caption);
      store.WriteStr(Ident(place, i, "Target"), list[i].Target);
    }
    store.WriteInt(place.Count, static_cast<int>(list.size()));
  }
}

}  // namespace qel
