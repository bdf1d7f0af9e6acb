// Data as the system's interface for it (IDataObject): one's own for others, and others' read.
#pragma once

#include <atomic>
#include <memory>

#include "vcl/rtl/win32.h"
#include "vcl/transfer/dataobject.h"
// It needs what stands above.
#include <ole2.h>

#include "vcl/rtl/systemmacros.h"

namespace vcl {

/// A block of the system's memory with the bytes. Raises EOutOfResources.
HGLOBAL MakeBlock(const std::string& bytes);
/// What is in a block.
std::string BlockBytes(HGLOBAL block);

struct TComReleaser {
  void operator()(IUnknown* object) const { object->Release(); }
};

/// The program's data, of which it has a copy: what is dragged may be read when the drag is over.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): it frees itself, by Release.
class TComData final : public IDataObject {
 public:
  explicit TComData(TDataObject data) : FData(std::move(data)) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++FReferences; }
  STDMETHODIMP_(ULONG) Release() override;

  STDMETHODIMP GetData(FORMATETC* format, STGMEDIUM* medium) override;
  STDMETHODIMP GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
  STDMETHODIMP QueryGetData(FORMATETC* format) override;
  STDMETHODIMP GetCanonicalFormatEtc(FORMATETC*, FORMATETC* out) override;
  /// The shell leaves notes of its own, such as the picture of the drag.
  STDMETHODIMP SetData(FORMATETC* format, STGMEDIUM* medium, BOOL release) override;
  STDMETHODIMP EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) override;
  STDMETHODIMP DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
    return OLE_E_ADVISENOTSUPPORTED;
  }
  STDMETHODIMP DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
  STDMETHODIMP EnumDAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }

 private:
  ~TComData() = default;
  std::atomic<ULONG> FReferences = 1;
  TDataObject FData;
};

/// Data that another program, or this one, is dragging.
class TReceivedData final : public TTransferData {
 public:
  explicit TReceivedData(IDataObject* data);

  std::vector<TTransferFormat> Formats() const override;
  std::optional<std::string> Bytes(TTransferFormat format) const override;

 private:
  std::unique_ptr<IDataObject, TComReleaser> FData;
};

}  // namespace vcl
