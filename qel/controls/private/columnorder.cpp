// The order of rows by the texts of a column.
#include "qel/controls/private/columnorder.h"

#include <algorithm>
#include <limits>
#include <numeric>

#include "vcl/rtl/convert.h"
#include "vcl/rtl/datetime.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

bool ReadNumber(const std::string& text, double& value) { return vcl::TryStrToFloat(text, value); }

bool ReadDate(const std::string& text, double& value) {
  vcl::TDateTime moment{};
  const bool is = vcl::TryStrToDateTime(text, moment) || vcl::TryStrToTime(text, moment);
  value = static_cast<double>(moment);
  return is;
}

using TRead = bool (*)(const std::string& text, double& value);

/// The values of the texts, the empty ones below all others; empty when one of them has none.
std::vector<double> ValuesOf(const std::vector<std::string>& texts, TRead read) {
  std::vector<double> values(texts.size(), -std::numeric_limits<double>::infinity());
  bool any = false;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (texts[i].empty()) continue;
    if (!read(texts[i], values[i])) return {};
    any = true;
  }
  return any ? values : std::vector<double>();
}

template <class Compare>
std::vector<int> Sorted(std::size_t count, bool descending, Compare compare) {
  std::vector<int> order(count);
  std::iota(order.begin(), order.end(), 0);
  std::ranges::stable_sort(order, [&](int a, int b) {
    const auto x = static_cast<std::size_t>(a);
    const auto y = static_cast<std::size_t>(b);
    return descending ? compare(y, x) < 0 : compare(x, y) < 0;
  });
  return order;
}

}  // namespace

std::vector<int> OrderOf(const std::vector<std::string>& texts, bool descending) {
  std::vector<double> values = ValuesOf(texts, ReadNumber);
  if (values.empty()) values = ValuesOf(texts, ReadDate);
  if (values.empty()) {
    return Sorted(texts.size(), descending, [&](std::size_t a, std::size_t b) {
      return vcl::AnsiCompareText(texts[a], texts[b]);
    });
  }
  return Sorted(texts.size(), descending, [&](std::size_t a, std::size_t b) {
    return values[a] < values[b] ? -1 : values[a] > values[b] ? 1 : 0;
  });
}

}  // namespace qel
