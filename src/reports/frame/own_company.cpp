// SPDX-License-Identifier: MIT
#include "reports/frame/own_company.h"

#include <cstddef>
#include <string_view>

#include "platform/profile/ini_file.h"
#include "platform/system/paths.h"
#include "platform/text/characters.h"
#include "platform/text/cp932.h"
#include "shell/config/settings.h"

namespace rbt {

namespace {

constexpr std::string_view kSection = "自社名";
constexpr NumberKey kAddress2InOnePieceKey{"Kakou", "自社名登録", "住所２印刷", 0};

/// Characters of the buffers that the values are read into.
constexpr std::size_t kNameBuffer = 80;
constexpr std::size_t kLabelBuffer = 20;
constexpr std::size_t kNumberBuffer = 30;
constexpr std::size_t kMailBuffer = 40;

std::string Read(std::string_view key, std::size_t buffer) {
  return GetProfileText(MapPath(kSteelIni), kSection, key, "", buffer);
}

/// Half as many characters as the value has bytes: all of a full-width label, and half of a half-width one.
std::string ReadLabel(std::string_view key) {
  const std::string text = Read(key, kLabelBuffer);
  return std::string(Left(text, Cp932Length(text) / 2));
}

template <std::size_t N>
void ReadNumbered(std::array<std::string, N>& values, std::string_view key, std::size_t buffer) {
  for (std::size_t i = 0; i < N; ++i) values[i] = Read(std::string(key) + std::to_string(i + 1), buffer);
}

template <std::size_t N>
std::int32_t CountOf(const std::array<std::string, N>& values) {
  std::int32_t count = 0;
  for (const std::string& value : values) count += value.empty() ? 0 : 1;
  return count;
}

}  // namespace

OwnCompany ReadOwnCompany() {
  OwnCompany company;
  company.name = Read("会社名", kNameBuffer);
  company.label1 = ReadLabel("名称1");
  company.label2 = ReadLabel("名称2");
  ReadNumbered(company.addresses, "住所", kNameBuffer);
  ReadNumbered(company.phones, "TEL", kNumberBuffer);
  ReadNumbered(company.faxes, "FAX", kNumberBuffer);
  ReadNumbered(company.postal, "郵便番号", kNumberBuffer);
  ReadNumbered(company.mails, "MAIL", kMailBuffer);
  company.last_length = static_cast<std::int32_t>(Cp932Length(company.mails.back()));
  company.name_in_one_piece = Settings.PrintOwnCompany != 0;
  company.address2_in_one_piece = ReadSetting(kAddress2InOnePieceKey) != 0;
  return company;
}

std::int32_t LineCountOf(const OwnCompany& company) {
  return 1 + CountOf(company.addresses) + CountOf(company.phones) + CountOf(company.faxes) +
         CountOf(company.mails);
}

}  // namespace rbt
