// SPDX-License-Identifier: MIT
#include "support/drawn_page.h"

#include <stdexcept>
#include <variant>

namespace rbt::test {

namespace {

constexpr std::int32_t kFrameWidth = 5;

template <typename Operation>
std::vector<Operation> OperationsOf(const std::vector<PrintedDocument>& documents) {
  if (documents.empty()) throw std::runtime_error("no document was printed");
  std::vector<Operation> found;
  for (const auto& operation : documents.back().pages.front()) {
    if (const auto* one = std::get_if<Operation>(&operation)) found.push_back(*one);
  }
  return found;
}

}  // namespace

DrawnPage::DrawnPage()
    : Printer("PDF", DeviceKind::pdf,
              [this](const PrintedDocument& document) { documents.push_back(document); }) {}

std::vector<PrintedText> DrawnPage::Texts() const { return OperationsOf<PrintedText>(documents); }

std::vector<PrintedRule> DrawnPage::Rules() const { return OperationsOf<PrintedRule>(documents); }

PrintedText DrawnPage::TextOf(std::string_view text) const {
  for (const PrintedText& one : Texts()) {
    if (one.text == text) return one;
  }
  throw std::runtime_error("the page lacks the text " + std::string(text));
}

PrintedText DrawnPage::TextThatStarts(std::string_view start) const {
  for (const PrintedText& one : Texts()) {
    if (std::string_view(one.text).starts_with(start)) return one;
  }
  throw std::runtime_error("no text of the page starts with " + std::string(start));
}

bool DrawnPage::Has(std::string_view text) const {
  for (const PrintedText& one : Texts()) {
    if (one.text.find(text) != std::string::npos) return true;
  }
  return false;
}

std::string DrawnPage::TextBeside(const PrintedText& text, float x) const { return TextAt(x, text.y); }

std::string DrawnPage::TextAt(float x, float y) const {
  for (const PrintedText& one : Texts()) {
    if (one.x == x && one.y == y) return one.text;
  }
  throw std::runtime_error("no text starts at " + std::to_string(x) + ", " + std::to_string(y));
}

PrintedRule DrawnPage::RuleAt(float y, float x1) const {
  for (const PrintedRule& rule : Rules()) {
    if (rule.y1 == y && rule.y2 == y && rule.x1 == x1) return rule;
  }
  throw std::runtime_error("no rule starts at " + std::to_string(x1) + ", " + std::to_string(y));
}

std::vector<float> DrawnPage::FrameColumns() const {
  std::vector<float> columns;
  for (const PrintedRule& rule : Rules()) {
    if (rule.draw_width == kFrameWidth && rule.x1 == rule.x2) columns.push_back(rule.x1);
  }
  return columns;
}

std::vector<float> DrawnPage::FrameRows() const {
  std::vector<float> rows;
  for (const PrintedRule& rule : Rules()) {
    if (rule.draw_width == kFrameWidth && rule.y1 == rule.y2) rows.push_back(rule.y1);
  }
  return rows;
}

}  // namespace rbt::test
