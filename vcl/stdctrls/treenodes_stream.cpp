// TTreeNodes in form files, and copied. A form file has the number of nodes on the top level and
// then each node: the indexes of its three pictures, the number of its children, the number of its
// text's bytes and these; then its children. Numbers have 32 bits, the lowest first.
#include <cstdint>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filer.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/treeview.h"

namespace vcl {
namespace {

struct TRecord {
  std::int32_t ImageIndex, SelectedIndex, StateIndex, Children, TextSize;
};

constexpr int DeepestLevel = 1000;

void CheckSize(std::int32_t size, const TStream& stream) {
  if (size >= 0 && size <= stream.Size() - stream.Position()) return;
  throw EReadError(Concat("The nodes of a tree view are damaged: ", std::to_string(size),
                          " bytes or nodes cannot follow"));
}

void WriteBelow(const TTreeNode* first, TStream& stream) {
  for (const TTreeNode* node = first; node; node = node->GetNextSibling()) {
    const std::string text = node->Text();
    const TRecord record{node->ImageIndex(), node->SelectedIndex(), node->StateIndex(),
                         node->Count(), static_cast<std::int32_t>(text.size())};
    stream.WriteBuffer(&record, sizeof record);
    stream.WriteText(text);
    WriteBelow(node->GetFirstChild(), stream);
  }
}

}  // namespace

void TTreeNodes::DefineProperties(TFiler& filer) {
  TPersistent::DefineProperties(filer);
  filer.DefineBinaryProperty(
      "Data", [this](TStream& stream) { ReadData(stream); },
      [this](TStream& stream) { WriteData(stream); }, FCount > 0);
}

void TTreeNodes::WriteData(TStream& stream) const {
  const std::int32_t count = FRoot->FCount;
  stream.WriteBuffer(&count, sizeof count);
  WriteBelow(FRoot->FFirst, stream);
}

TTreeNode* TTreeNodes::ReadNode(TStream& stream, TTreeNode* parent, int depth) {
  if (depth > DeepestLevel) throw EReadError("The nodes of a tree view are damaged: too deep");
  TRecord record{};
  stream.ReadBuffer(&record, sizeof record);
  CheckSize(record.TextSize, stream);
  std::string text(static_cast<std::size_t>(record.TextSize), '\0');
  stream.ReadBuffer(text.data(), record.TextSize);
  CheckSize(record.Children, stream);
  TTreeNode* node = AddChild(parent, text);
  node->SetImageIndex(record.ImageIndex);
  node->SetSelectedIndex(record.SelectedIndex);
  node->SetStateIndex(record.StateIndex);
  for (std::int32_t i = 0; i < record.Children; ++i) ReadNode(stream, node, depth + 1);
  return node;
}

void TTreeNodes::ReadData(TStream& stream) {
  std::int32_t count = 0;
  stream.ReadBuffer(&count, sizeof count);
  CheckSize(count, stream);
  const TUpdating updating(*this, FOwner);
  const TOnFailure none([this] { Clear(); }, FOwner);
  Clear();
  for (std::int32_t i = 0; i < count; ++i) ReadNode(stream, nullptr, 0);
}

void TTreeNodes::CopyChildren(const TTreeNode* from, TTreeNode* to) {
  for (const TTreeNode* child = from->FFirst; child; child = child->FNext) {
    TTreeNode* copy = AddChild(to, child->Text());
    copy->Assign(child);
    copy->SetData(nullptr);
    CopyChildren(child, copy);
  }
}

void TTreeNodes::Assign(const TPersistent* source) {
  if (source == this) return;
  const auto* nodes = dynamic_cast<const TTreeNodes*>(source);
  if (!nodes) return TPersistent::Assign(source);
  const TUpdating updating(*this, FOwner);
  Clear();
  CopyChildren(nodes->FRoot.get(), nullptr);
}

}  // namespace vcl
