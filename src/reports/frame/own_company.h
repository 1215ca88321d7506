// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace rbt {

/// The firm that issues a report, as another program of the family wrote it into section 自社名 of STEEL.INI.
/// An empty text is a line that is not there.
struct OwnCompany {
  std::string name;                      ///< 会社名
  std::string label1;                    ///< 名称1, label of address 1
  std::string label2;                    ///< 名称2, label of address 3
  std::array<std::string, 3> addresses;  ///< 住所1 to 住所3
  std::array<std::string, 3> phones;     ///< TEL1 to TEL3
  std::array<std::string, 2> faxes;      ///< FAX1, FAX2
  std::array<std::string, 2> postal;     ///< 郵便番号1, 郵便番号2
  std::array<std::string, 2> mails;      ///< MAIL1, MAIL2
  bool name_in_one_piece = false;        ///< else spread evenly over its box
  bool address2_in_one_piece = false;
  std::int32_t last_length = 0;  ///< bytes that the reader reported for the last value read
};

/// Reads STEEL.INI and the two registry settings; what is missing is empty.
OwnCompany ReadOwnCompany();

/// Lines of the block: the name, and every address, phone, fax and mail that is there.
std::int32_t LineCountOf(const OwnCompany& company);

}  // namespace rbt
