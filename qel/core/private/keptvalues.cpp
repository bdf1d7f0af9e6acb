// TKeptValues: reading and writing, and what a store that refuses does.
#include "qel/core/private/keptvalues.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/watch.h"

namespace qel {

std::string TKeptValues::NameOf(const char* value) const {
  const vcl::TComponent* owner = FComponent.Owner();
  return vcl::Concat(owner ? owner->Name() + "." : std::string(), FComponent.Name(), "_", value);
}

/// What the store refuses is its own event's matter, not that of who reads or writes a value.
template <class Call>
void TKeptValues::Guarded(Call call) const {
  const vcl::TWatch watch(&FComponent);
  try {
    call();
  } catch (const vcl::EIniFileException&) {
    if (!watch.Gone()) FStore.OnError(&FStore);
  } catch (const vcl::ERegistryException&) {
    if (!watch.Gone()) FStore.OnError(&FStore);
  }
}

std::string TKeptValues::Read(const char* value) const {
  if (!Used()) return {};
  const std::string name = NameOf(value);
  vcl::TStringList values;
  Guarded([&] {
    const TQELDataStore::TStrictReading strict(FStore, &FComponent);
    FStore.ReadStrs(values);
  });
  return values.Values(name);
}

void TKeptValues::Write(const char* value, const std::string& text) const {
  if (Used()) Guarded([&] { FStore.WriteStr(NameOf(value), text); });
}

void TKeptValues::Forget(const char* value) const {
  if (Used()) FStore.DeleteKey(NameOf(value));
}

}  // namespace qel
