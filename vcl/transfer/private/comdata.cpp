// Data going through the system's interface.
#include "vcl/transfer/private/comdata.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "vcl/graphics/handles.h"
#include "vcl/rtl/scope.h"
// They need what stands above.
#include <shellapi.h>
#include <shlobj.h>

#include "vcl/rtl/systemmacros.h"

namespace vcl {

namespace {

FORMATETC InMemory(TTransferFormat format) {
  return {static_cast<CLIPFORMAT>(format), nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

/// What a call raises is told to the system by a number.
template <class Call>
HRESULT Guarded(Call call) {
  try {
    return call();
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

std::string StreamBytes(IStream& stream) {
  LARGE_INTEGER start{};
  stream.Seek(start, STREAM_SEEK_SET, nullptr);
  std::string bytes;
  char part[4096];
  for (ULONG read = 0; SUCCEEDED(stream.Read(part, sizeof part, &read)) && read > 0;) {
    bytes.append(part, read);
  }
  return bytes;
}

}  // namespace

HGLOBAL MakeBlock(const std::string& bytes) {
  // The system has no blocks without a byte.
  const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, std::max<std::size_t>(bytes.size(), 1));
  void* const place = block ? ::GlobalLock(block) : nullptr;
  if (!place)
    RaiseOutOfResources("A block of memory of " + std::to_string(bytes.size()) + " bytes");
  *static_cast<char*>(place) = 0;
  std::memcpy(place, bytes.data(), bytes.size());
  ::GlobalUnlock(block);
  return block;
}

std::string BlockBytes(HGLOBAL block) {
  const auto* data = static_cast<const char*>(::GlobalLock(block));
  if (!data) return {};
  const TAtEnd unlock([block] { ::GlobalUnlock(block); });
  return {data, ::GlobalSize(block)};
}

// One's own.

HRESULT TComData::QueryInterface(REFIID iid, void** out) {
  const bool known = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDataObject);
  *out = known ? this : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG TComData::Release() {
  const ULONG left = --FReferences;
  if (left == 0) delete this;
  return left;
}

HRESULT TComData::QueryGetData(FORMATETC* format) {
  if (format->lindex != -1) return DV_E_LINDEX;
  if (format->dwAspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!(format->tymed & TYMED_HGLOBAL)) return DV_E_TYMED;
  return FData.HasFormat(format->cfFormat) ? S_OK : DV_E_FORMATETC;
}

HRESULT TComData::GetData(FORMATETC* format, STGMEDIUM* medium) {
  if (const HRESULT wrong = QueryGetData(format); wrong != S_OK) return wrong;
  return Guarded([&] {
    *medium = {};
    medium->hGlobal = MakeBlock(*FData.Bytes(format->cfFormat));
    medium->tymed = TYMED_HGLOBAL;
    return S_OK;
  });
}

HRESULT TComData::GetCanonicalFormatEtc(FORMATETC*, FORMATETC* out) {
  out->ptd = nullptr;
  return E_NOTIMPL;
}

HRESULT TComData::SetData(FORMATETC* format, STGMEDIUM* medium, BOOL release) {
  if (medium->tymed != TYMED_HGLOBAL) return DV_E_TYMED;
  return Guarded([&] {
    FData.SetBytes(format->cfFormat, BlockBytes(medium->hGlobal));
    if (release) ::ReleaseStgMedium(medium);
    return S_OK;
  });
}

HRESULT TComData::EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) {
  *formats = nullptr;
  if (direction != DATADIR_GET) return E_NOTIMPL;
  return Guarded([&] {
    std::vector<FORMATETC> list;
    for (const TTransferFormat format : FData.Formats()) list.push_back(InMemory(format));
    return ::SHCreateStdEnumFmtEtc(static_cast<UINT>(list.size()), list.data(), formats);
  });
}

// Others'.

TReceivedData::TReceivedData(IDataObject* data) : FData(data) { data->AddRef(); }

std::vector<TTransferFormat> TReceivedData::Formats() const {
  std::vector<TTransferFormat> formats;
  IEnumFORMATETC* list = nullptr;
  if (FAILED(FData->EnumFormatEtc(DATADIR_GET, &list)) || !list) return formats;
  const std::unique_ptr<IEnumFORMATETC, TComReleaser> owned(list);
  FORMATETC each{};
  while (list->Next(1, &each, nullptr) == S_OK) {
    if (each.ptd) ::CoTaskMemFree(each.ptd);
    if (std::ranges::find(formats, each.cfFormat) == formats.end())
      formats.push_back(each.cfFormat);
  }
  return formats;
}

std::optional<std::string> TReceivedData::Bytes(TTransferFormat format) const {
  FORMATETC wanted = InMemory(format);
  wanted.tymed |= TYMED_ISTREAM;
  STGMEDIUM medium{};
  if (FAILED(FData->GetData(&wanted, &medium))) return std::nullopt;
  const TAtEnd release([&medium] { ::ReleaseStgMedium(&medium); });
  if (medium.tymed == TYMED_HGLOBAL) return BlockBytes(medium.hGlobal);
  if (medium.tymed == TYMED_ISTREAM && medium.pstm) return StreamBytes(*medium.pstm);
  return std::nullopt;
}

}  // namespace vcl
