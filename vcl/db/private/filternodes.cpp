// Evaluating a filter for a record. What Null is put into results in Null, which fulfils nothing.
#include "vcl/db/private/filternodes.h"

#include <optional>

#include "vcl/db/private/textmatch.h"
#include "vcl/rtl/text.h"

namespace vcl::filter {
namespace {

bool IsNull(const TResult& value) { return value.index() == 0; }

double ToDouble(const TResult& value) {
  const auto* whole = std::get_if<std::int64_t>(&value);
  return whole ? static_cast<double>(*whole) : std::get<double>(value);
}

TResult ResultOf(const TFieldValue& value) {
  switch (value.index()) {
    case 1: return std::get<std::int64_t>(value);
    case 2: return std::get<double>(value);
    case 3: return std::string_view(std::get<std::string>(value));
    default: return {};
  }
}

TResult Condition(bool holds) { return std::int64_t{holds}; }

template <class T>
int Sign(const T& a, const T& b) {
  return a < b ? -1 : b < a ? 1 : 0;
}

/// Negative, zero or positive; nothing where one of them is Null, or of another sort than its field
/// says, as what a database has for a date may be.
std::optional<int> Compare(const TResult& a, const TResult& b, bool ignoreCase) {
  if (IsNull(a) || IsNull(b)) return {};
  const auto* text = std::get_if<std::string_view>(&a);
  const auto* otherText = std::get_if<std::string_view>(&b);
  if (!text != !otherText) return {};
  if (text) return ignoreCase ? AnsiCompareText(*text, *otherText) : text->compare(*otherText);
  const auto* whole = std::get_if<std::int64_t>(&a);
  const auto* otherWhole = std::get_if<std::int64_t>(&b);
  return whole && otherWhole ? Sign(*whole, *otherWhole) : Sign(ToDouble(a), ToDouble(b));
}

bool Fits(TRelation relation, int order) {
  switch (relation) {
    case TRelation::Equal: return order == 0;
    case TRelation::NotEqual: return order != 0;
    case TRelation::Less: return order < 0;
    case TRelation::LessOrEqual: return order <= 0;
    case TRelation::Greater: return order > 0;
    case TRelation::GreaterOrEqual: break;
  }
  return order >= 0;
}

/// Whole numbers as long as their result is one that fits.
std::optional<std::int64_t> CalculateWhole(char operation, std::int64_t a, std::int64_t b) {
  std::int64_t result = 0;
  const bool overflow = operation == '+'   ? __builtin_add_overflow(a, b, &result)
                        : operation == '-' ? __builtin_sub_overflow(a, b, &result)
                        : operation == '*' ? __builtin_mul_overflow(a, b, &result)
                                           : true;
  return overflow ? std::nullopt : std::optional(result);
}

TResult Calculate(char operation, const TResult& a, const TResult& b) {
  const auto isText = [](const TResult& value) { return value.index() == 3; };
  if (IsNull(a) || IsNull(b) || isText(a) || isText(b)) return {};
  const auto* whole = std::get_if<std::int64_t>(&a);
  const auto* otherWhole = std::get_if<std::int64_t>(&b);
  if (whole && otherWhole) {
    if (const auto result = CalculateWhole(operation, *whole, *otherWhole)) return *result;
  }
  const double x = ToDouble(a), y = ToDouble(b);
  switch (operation) {
    case '+': return x + y;
    case '-': return x - y;
    case '*': return x * y;
    default: break;
  }
  return y == 0 ? TResult() : x / y;
}

}  // namespace

TResult TLiteral::Evaluate(const TRow&) const { return ResultOf(FValue); }

TResult TFieldNode::Evaluate(const TRow& row) const {
  const auto place = static_cast<std::size_t>(FFieldNo);
  return ResultOf(place < row.Record.size() ? row.Record[place] : row.Behind(row.Record, FFieldNo));
}

TResult TArithmetic::Evaluate(const TRow& row) const {
  TResult result = FFirst->Evaluate(row);
  for (const auto& [operation, node] : FTerms) {
    result = Calculate(operation, result, node->Evaluate(row));
  }
  return result;
}

TResult TNegative::Evaluate(const TRow& row) const {
  return Calculate('-', std::int64_t{0}, FNode->Evaluate(row));
}

TResult TComparison::Evaluate(const TRow& row) const {
  const TResult left = FLeft->Evaluate(row);
  const std::optional<int> order = Compare(left, FRight->Evaluate(row), FIgnoreCase);
  return order ? Condition(Fits(FRelation, *order)) : TResult();
}

TResult TLike::Evaluate(const TRow& row) const {
  const TResult value = FText->Evaluate(row), wanted = FPattern->Evaluate(row);
  const auto* text = std::get_if<std::string_view>(&value);
  const auto* pattern = std::get_if<std::string_view>(&wanted);
  if (!text || !pattern) return {};
  return Condition(FWay == Pattern ? MatchesPattern(*text, *pattern, FIgnoreCase)
                                   : BeginsWith(*text, *pattern, FIgnoreCase));
}

TResult TIn::Evaluate(const TRow& row) const {
  const TResult value = FNode->Evaluate(row);
  bool unknown = false;
  for (const TNodePtr& each : FList) {
    const std::optional<int> order = Compare(value, each->Evaluate(row), FIgnoreCase);
    if (order == 0) return Condition(true);
    unknown |= !order;
  }
  return unknown ? TResult() : Condition(false);
}

TResult TIsNull::Evaluate(const TRow& row) const { return Condition(IsNull(FNode->Evaluate(row))); }

TResult TNot::Evaluate(const TRow& row) const {
  const TResult value = FNode->Evaluate(row);
  return IsNull(value) ? value : Condition(value != Condition(true));
}

TResult TJoined::Evaluate(const TRow& row) const {
  bool unknown = false;
  for (const TNodePtr& each : FNodes) {
    const TResult value = each->Evaluate(row);
    unknown |= IsNull(value);
    // One that does not hold decides for AND, one that does for OR.
    if (!IsNull(value) && (value == Condition(true)) != FByAnd) return Condition(!FByAnd);
  }
  return unknown ? TResult() : Condition(FByAnd);
}

bool Holds(const TNode& condition, const TRow& row) {
  return condition.Evaluate(row) == Condition(true);
}

}  // namespace vcl::filter
