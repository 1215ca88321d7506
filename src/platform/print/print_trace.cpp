// SPDX-License-Identifier: MIT
#include "platform/print/print_trace.h"

#include <string_view>
#include <variant>

#include <fmt/format.h>

#include "platform/text/characters.h"

namespace rbt {

namespace {

/// Two decimals, the zeros at their end taken off, and no sign on what is then zero.
std::string Number(double value) {
  std::string text = fmt::format("{:.2f}", value);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

std::string Escaped(std::string_view text) {
  return ReplaceAll(ReplaceAll(ReplaceAll(text, "\\", "\\\\"), "\t", "\\t"), "\n", "\\n");
}

class Writer {
 public:
  void Document(const PrintedDocument& document) {
    trace_ = fmt::format("document\t{}\t{}\t{}\n", Escaped(document.device_name), document.paper_code,
                         document.orientation);
    int number = 0;
    for (const PrintedPage& page : document.pages) {
      trace_ += fmt::format("page\t{}\n", ++number);
      for (const auto& operation : page) std::visit(*this, operation);
    }
    trace_ += "end\n";
  }

  void operator()(const PrintedText& text) {
    std::string font = fmt::format("font\t{}\t{}\t{}\n", Escaped(text.font_name), Number(text.font_size),
                                   text.font_bold ? 1 : 0);
    if (font != font_) trace_ += font;
    font_ = std::move(font);
    trace_ += fmt::format("text\t{}\t{}\t{}\n", Number(text.x), Number(text.y), Escaped(text.text));
  }

  void operator()(const PrintedRule& rule) {
    trace_ += fmt::format("line\t{}\t{}\t{}\t{}\t{}\n", Number(rule.x1), Number(rule.y1), Number(rule.x2),
                          Number(rule.y2), rule.draw_width);
  }

  std::string Take() { return std::move(trace_); }

 private:
  std::string trace_;
  std::string font_;
};

}  // namespace

std::string TraceText(const PrintedDocument& document) {
  Writer writer;
  writer.Document(document);
  return writer.Take();
}

}  // namespace rbt
