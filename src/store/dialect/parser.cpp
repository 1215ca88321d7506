// SPDX-License-Identifier: MIT
#include "store/dialect/parser.h"

#include <fmt/format.h>

#include "store/dialect/expression_parser.h"
#include "store/dialect/token_stream.h"

namespace rbt::dialect {
namespace {

class Parser {
 public:
  explicit Parser(std::string_view statement) : tokens_(statement) {}

  Statement Run() {
    Statement statement = ParseStatement();
    tokens_.TakeSymbol(";");
    if (tokens_.Peek().kind != TokenKind::end) tokens_.RefuseHere("the end of the statement is expected");
    return statement;
  }

 private:
  Statement ParseStatement() {
    if (tokens_.AtWord("SELECT")) return ParseSelect();
    if (tokens_.TakeWord("INSERT")) return ParseInsert();
    if (tokens_.TakeWord("UPDATE")) return ParseUpdate();
    if (tokens_.TakeWord("DELETE")) return ParseDelete();
    if (tokens_.TakeWord("CREATE")) return ParseCreate();
    if (tokens_.TakeWord("ALTER")) return ParseAlter();
    if (tokens_.TakeWord("DROP")) return ParseDrop();
    tokens_.RefuseHere("a statement is expected");
  }

  template <typename ParseElement>
  auto ParseCommaList(ParseElement parse_element) {
    std::vector<decltype(parse_element())> list;
    do {
      list.push_back(parse_element());
    } while (tokens_.TakeSymbol(","));
    return list;
  }

  template <typename ParseElement>
  auto ParseParenthesized(ParseElement parse_element) {
    tokens_.ExpectSymbol("(");
    auto list = ParseCommaList(parse_element);
    tokens_.ExpectSymbol(")");
    return list;
  }

  std::vector<Name> ParseFieldNames() {
    return ParseParenthesized([this] { return tokens_.ExpectName("a field"); });
  }

  ExpressionPtr ParseWhere() { return tokens_.TakeWord("WHERE") ? ParseExpression(tokens_) : nullptr; }

  Select ParseSelect() {
    tokens_.ExpectWord("SELECT");
    Select select;
    if (!tokens_.TakeSymbol("*")) {
      select.items = ParseCommaList([this] { return ParseSelectItem(); });
    }
    tokens_.ExpectWord("FROM");
    select.table = tokens_.ExpectName("a table");
    select.where = ParseWhere();
    if (tokens_.TakeWord("GROUP")) {
      tokens_.ExpectWord("BY");
      select.group_by = ParseCommaList([this] { return ParseColumnName(tokens_); });
    }
    if (tokens_.TakeWord("ORDER")) {
      tokens_.ExpectWord("BY");
      select.order_by = ParseCommaList([this] {
        return OrderTerm{ParseColumnName(tokens_), ParseDirection()};
      });
    }
    return select;
  }

  SelectItem ParseSelectItem() {
    SelectItem item;
    item.value = ParseExpression(tokens_);
    if (tokens_.TakeWord("AS")) item.alias = tokens_.ExpectName("a column");
    return item;
  }

  bool ParseDirection() {
    if (tokens_.TakeWord("DESC")) return true;
    tokens_.TakeWord("ASC");
    return false;
  }

  Insert ParseInsert() {
    tokens_.ExpectWord("INTO");
    Insert insert;
    insert.table = tokens_.ExpectName("a table");
    insert.fields = ParseFieldNames();
    if (tokens_.AtWord("SELECT")) {
      insert.source = ParseSelect();
    } else {
      tokens_.ExpectWord("VALUES");
      insert.source = ParseParenthesized([this] { return ParseExpression(tokens_); });
    }
    return insert;
  }

  Update ParseUpdate() {
    Update update;
    update.table = tokens_.ExpectName("a table");
    tokens_.ExpectWord("SET");
    update.assignments = ParseCommaList([this] {
      Assignment assignment;
      assignment.target = ParseColumnName(tokens_);
      tokens_.ExpectSymbol("=");
      assignment.value = ParseExpression(tokens_);
      return assignment;
    });
    update.where = ParseWhere();
    return update;
  }

  Delete ParseDelete() {
    Delete statement;
    if (!tokens_.TakeSymbol("*") && !tokens_.AtWord("FROM")) statement.column = ParseColumnName(tokens_);
    tokens_.ExpectWord("FROM");
    statement.table = tokens_.ExpectName("a table");
    statement.where = ParseWhere();
    return statement;
  }

  Statement ParseCreate() {
    if (tokens_.TakeWord("TABLE")) return ParseCreateTable();
    CreateIndex create;
    create.unique = tokens_.TakeWord("UNIQUE");
    tokens_.ExpectWord("INDEX");
    create.index = tokens_.ExpectName("an index");
    tokens_.ExpectWord("ON");
    create.table = tokens_.ExpectName("a table");
    create.fields = ParseParenthesized([this] {
      return IndexField{tokens_.ExpectName("a field"), ParseDirection()};
    });
    return create;
  }

  CreateTable ParseCreateTable() {
    CreateTable create;
    create.table = tokens_.ExpectName("a table");
    tokens_.ExpectSymbol("(");
    do {
      if (tokens_.AtWord("CONSTRAINT") || tokens_.AtWord("PRIMARY") || tokens_.AtWord("UNIQUE")) {
        KeyDefinition key = ParseKeyHead();
        key.fields = ParseFieldNames();
        create.keys.push_back(std::move(key));
      } else {
        create.columns.push_back(ParseColumnDefinition());
        while (tokens_.AtWord("CONSTRAINT") || tokens_.AtWord("PRIMARY") || tokens_.AtWord("UNIQUE")) {
          KeyDefinition key = ParseKeyHead();
          key.fields.push_back(create.columns.back().name);
          create.keys.push_back(std::move(key));
        }
      }
    } while (tokens_.TakeSymbol(","));
    tokens_.ExpectSymbol(")");
    return create;
  }

  /// [CONSTRAINT name] PRIMARY KEY or UNIQUE.
  KeyDefinition ParseKeyHead() {
    KeyDefinition key;
    if (tokens_.TakeWord("CONSTRAINT")) key.name = tokens_.ExpectName("a constraint");
    if (!tokens_.TakeWord("UNIQUE")) {
      tokens_.ExpectWord("PRIMARY");
      tokens_.ExpectWord("KEY");
      key.primary = true;
    }
    return key;
  }

  /// name type [(size)] [NOT NULL]
  ColumnDefinition ParseColumnDefinition() {
    ColumnDefinition column;
    column.name = tokens_.ExpectName("a field");
    const Token word = tokens_.Take();
    if (word.kind != TokenKind::word) tokens_.RefuseAt(word.place, "a type is expected");
    std::string declared = word.text;
    if (tokens_.AtSymbol("(")) {
      const auto numbers = ParseParenthesized([this] {
        if (tokens_.Peek().kind != TokenKind::number) tokens_.RefuseHere("a size is expected");
        return tokens_.Take().text;
      });
      declared += fmt::format("({})", fmt::join(numbers, ","));
    }
    const std::optional<FieldDef> field = FieldOfDeclaredType(declared);
    if (!field) tokens_.RefuseAt(word.place, "an unknown type");
    column.field = *field;
    column.field.name = column.name.text;
    if (tokens_.TakeWord("NOT")) {
      tokens_.ExpectWord("NULL");
      column.field.required = true;
    }
    return column;
  }

  Statement ParseAlter() {
    tokens_.ExpectWord("TABLE");
    Name table = tokens_.ExpectName("a table");
    tokens_.ExpectWord("ADD");
    if (tokens_.TakeWord("CONSTRAINT")) {
      AddPrimaryKey add{std::move(table), tokens_.ExpectName("a constraint"), {}};
      tokens_.ExpectWord("PRIMARY");
      tokens_.ExpectWord("KEY");
      add.fields = ParseFieldNames();
      return add;
    }
    tokens_.TakeWord("COLUMN");
    return AddColumn{std::move(table), ParseColumnDefinition()};
  }

  Statement ParseDrop() {
    if (tokens_.TakeWord("TABLE")) return DropTable{tokens_.ExpectName("a table")};
    tokens_.ExpectWord("INDEX");
    DropIndex drop;
    drop.index = tokens_.ExpectName("an index");
    tokens_.ExpectWord("ON");
    drop.table = tokens_.ExpectName("a table");
    return drop;
  }

  TokenStream tokens_;
};

}  // namespace

Statement Parse(std::string_view statement) { return Parser(statement).Run(); }

}  // namespace rbt::dialect
