// Making a message of a draft.
#include "demos/mailer/draft.h"

#include <algorithm>
#include <cstdio>

#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace mailer {

namespace {

/// The blanks around addresses would go to the server with them.
std::string WithoutBlanks(const std::string& addresses) {
  std::string text;
  for (std::size_t start = 0; start < addresses.size();) {
    const std::size_t end = std::min(addresses.find(',', start), addresses.size());
    const auto address = vcl::Trim(std::string_view(addresses).substr(start, end - start));
    if (!address.empty() && !text.empty()) text += ',';
    text += address;
    start = end + 1;
  }
  return text;
}

/// A paragraph in lines of a readable length: servers refuse endless ones.
void AddLines(vcl::TStrings& lines, std::string_view paragraph) {
  constexpr std::size_t width = 76, limit = 900;
  while (paragraph.size() > width) {
    std::size_t end = paragraph.rfind(' ', width);
    if (end == paragraph.npos || end == 0) end = paragraph.find(' ', width);
    if (end == paragraph.npos && paragraph.size() <= limit) break;
    const bool atBlank = end <= limit;
    const auto line = atBlank ? paragraph.substr(0, end) : vcl::CutUtf8(paragraph, limit);
    lines.Add(std::string(line));
    paragraph.remove_prefix(line.size() + (atBlank ? 1 : 0));
  }
  lines.Add(std::string(paragraph));
}

}  // namespace

void FillMessage(qel::TQELMessage& message, const TDraft& draft, const TAccount& account) {
  message.SetFromName(account.Name);
  message.SetFromMail(account.Address);
  message.SetSendTo(WithoutBlanks(draft.To));
  message.SetSubject(draft.Subject);
  vcl::TStringList paragraphs;
  paragraphs.SetText(draft.Text);
  for (int i = 0; i < paragraphs.Count(); ++i) AddLines(*message.Message(), paragraphs.Strings(i));
}

std::string MailDateFormat() {
  constexpr const char* days[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  constexpr const char* months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                    "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  SYSTEMTIME now;
  ::GetSystemTime(&now);
  char text[64];
  std::snprintf(text, sizeof text, "\"%s, %02u %s %04u %02u:%02u:%02u +0000\"",
                days[now.wDayOfWeek % 7], unsigned{now.wDay}, months[(now.wMonth + 11) % 12],
                unsigned{now.wYear}, unsigned{now.wHour}, unsigned{now.wMinute},
                unsigned{now.wSecond});
  return text;
}

}  // namespace mailer
