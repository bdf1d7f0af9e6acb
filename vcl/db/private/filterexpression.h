// Filters: expressions over the fields of a record, compiled once and evaluated for each record.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <variant>

#include "vcl/db/dbtypes.h"

namespace vcl::filter {

/// Where an expression finds a field's value, and of which kind that is.
struct TFieldPlace {
  int FieldNo;
  TFieldType DataType;
};
using TFindField = std::function<std::optional<TFieldPlace>(std::string_view name)>;

/// A record as expressions read it: values behind its end are asked for.
struct TRow {
  const TRecord& Record;
  const std::function<const TFieldValue&(const TRecord&, int fieldNo)>& Behind;
};

/// What a part of an expression results in; conditions are 0, 1 or Null, which is neither. Texts
/// are parts of the record or of the expression.
using TResult = std::variant<std::monostate, std::int64_t, double, std::string_view>;

/// What conditions result in: Unknown is what Null has been compared with.
enum class TTruth { False, True, Unknown };

enum class TKind { Number, Text, Date, Condition };

/// A part of an expression.
class TNode {
 public:
  explicit TNode(TKind kind) : FKind(kind) {}
  virtual ~TNode() = default;
  TKind Kind() const { return FKind; }
  virtual TResult Evaluate(const TRow& row) const = 0;
  /// The same of a condition.
  virtual TTruth Test(const TRow& row) const;

 private:
  TKind FKind;
};
using TNodePtr = std::unique_ptr<TNode>;

struct TOptions {
  bool IgnoreCase = false;
  /// A star at a text's end means any characters: = 'A*'.
  bool PartialCompare = true;
};

/// Null for an empty text, which every record passes. Raises EDatabaseError with the text, the
/// place and what was expected there.
TNodePtr Compile(std::string_view text, const TFindField& findField, const TOptions& options);

/// True when a condition is fulfilled.
inline bool Holds(const TNode& condition, const TRow& row) {
  return condition.Test(row) == TTruth::True;
}

}  // namespace vcl::filter
