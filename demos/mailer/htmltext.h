// HTML as plain text.
#pragma once

#include <string>
#include <string_view>

namespace mailer {

/// What a page says, without its looks: paragraphs, lists and lines as lines, links with their
/// targets behind them, pictures by their alternative texts; nothing of scripts and styles.
std::string HtmlToText(std::string_view html);

}  // namespace mailer
