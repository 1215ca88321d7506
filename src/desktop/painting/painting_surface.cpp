// SPDX-License-Identifier: MIT
#include "desktop/painting/painting_surface.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include <QBuffer>
#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPen>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/print/paper.h"
#include "platform/print/printer_surface.h"
#include "platform/text/characters.h"

namespace rbt {

namespace {

struct QtPaper {
  std::int32_t code;
  QPageSize::PageSizeId size;
};
constexpr std::array<QtPaper, kPapers.size()> kQtPapers{{
    {kPaperA3, QPageSize::A3},
    {kPaperA4, QPageSize::A4},
    {kPaperB5, QPageSize::JisB5},
}};

QString Text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// The family that the report names where it is installed, else the one that this program brings along.
QString FamilyOf(const std::string& font_name) {
  const QString family = Text(font_name);
  return QFontDatabase::families().contains(family) ? family : QStringLiteral("IPAGothic");
}

class PagePainter {
 public:
  explicit PagePainter(QPainter& painter) : painter_(painter) {}

  void operator()(const PrintedRule& rule) {
    QPen pen(Qt::black);
    pen.setWidthF(rule.draw_width * kTwipsPerDrawWidth);
    pen.setCapStyle(Qt::SquareCap);
    painter_.setPen(pen);
    painter_.drawLine(QPointF(rule.x1, rule.y1), QPointF(rule.x2, rule.y2));
  }

  void operator()(const PrintedText& text) {
    UseFont(text);
    painter_.setPen(Qt::black);
    const QFontMetricsF metrics(painter_.font(), painter_.device());
    const double baseline =
        text.y + LineHeight(text.font_size) * metrics.ascent() / (metrics.ascent() + metrics.descent());
    double x = text.x;
    for (const char32_t character : CharactersOf(text.text)) {
      const std::string utf8 = Utf8Of(character);
      const double cell = TextWidthAt(text.font_size, utf8);
      const QString glyph = Text(utf8);
      // A font that is not of fixed pitch still stands in the middle of its cell.
      const double inset = (cell - metrics.horizontalAdvance(glyph)) / 2;
      painter_.drawText(QPointF(x + inset, baseline), glyph);
      x += cell;
    }
  }

 private:
  void UseFont(const PrintedText& text) {
    // Looking through all fonts takes longer than drawing a text.
    if (family_.isEmpty() || text.font_name != font_name_) {
      family_ = FamilyOf(text.font_name);
      font_name_ = text.font_name;
    }
    QFont font(family_);
    font.setPixelSize(qRound(LineHeight(text.font_size)));
    font.setBold(text.font_bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);
    painter_.setFont(font);
  }

  QPainter& painter_;
  std::string font_name_;
  QString family_;  ///< of `font_name_`
};

/// Paints one page after the other on a device; the sheet of the first is set up before.
class DevicePainter {
 public:
  /// The pages' corner at `origin`, in twips from the sheet's.
  DevicePainter(QPagedPaintDevice& device, std::string name, const PageNews& news, const QPointF& origin = {})
      : device_(device), name_(std::move(name)), news_(news), origin_(origin) {}

  void Paint(const PrintedPage& page) {
    ++page_;
    if (news_) news_(page_);
    if (!painter_.isActive()) {
      Begin();
    } else if (!device_.newPage()) {
      throw Fault(FaultKind::file, name_ + ": no further page can be started");
    }
    PaintPage(painter_, page);
  }
  void End() {
    if (painter_.isActive() && !painter_.end()) {
      throw Fault(FaultKind::file, name_ + ": the document cannot be ended");
    }
  }

 private:
  void Begin() {
    if (!painter_.begin(&device_)) {
      throw Fault(FaultKind::file, name_ + ": the device cannot be painted on");
    }
    painter_.scale(device_.logicalDpiX() / static_cast<double>(kTwipsPerInch),
                   device_.logicalDpiY() / static_cast<double>(kTwipsPerInch));
    painter_.translate(origin_);
  }

  QPagedPaintDevice& device_;
  std::string name_;
  const PageNews& news_;
  QPointF origin_;
  std::int64_t page_ = 0;
  QPainter painter_;
};

/// Fonts need an application; the command line has none until its first page.
void RequireApplication() {
  if (QCoreApplication::instance() != nullptr) return;
  static int count = 3;
  static char program[] = "rbtally";
  static char option[] = "-platform";
  static char platform[] = "offscreen";
  static char* arguments[] = {program, option, platform, nullptr};
  // What Qt finds wrong with a session that has no desktop does not concern a page.
  QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  static QGuiApplication application(count, arguments);
}

}  // namespace

void PaintPage(QPainter& painter, const PrintedPage& page) {
  PagePainter page_painter(painter);
  for (const auto& operation : page) std::visit(page_painter, operation);
}

QPageSize PageSizeOf(std::int32_t paper_code) {
  for (const QtPaper& paper : kQtPapers) {
    if (paper.code == paper_code) return QPageSize(paper.size);
  }
  return QPageSize(QPageSize::A4);
}

void SetUpSheet(QPagedPaintDevice& device, const PrintedDocument& document) {
  const auto orientation =
      document.orientation == kLandscape ? QPageLayout::Landscape : QPageLayout::Portrait;
  device.setPageLayout(QPageLayout(PageSizeOf(document.paper_code), orientation, QMarginsF(0, 0, 0, 0)));
}

void PaintDocument(QPagedPaintDevice& device, const PrintedDocument& document, const QPointF& origin,
                   const PageNews& news) {
  DevicePainter painter(device, document.device_name, news, origin);
  for (const PrintedPage& page : document.pages) painter.Paint(page);
  painter.End();
}

void PaintPdf(std::span<const PrintedDocument> documents, const std::filesystem::path& file,
              const PageNews& news) {
  RequireApplication();
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&bytes);
    writer.setCreator(QStringLiteral("rbtally"));
    if (!documents.empty()) writer.setTitle(Text(documents.front().title));
    writer.setResolution(kTwipsPerInch);
    DevicePainter painter(writer, file.string(), news);
    for (const PrintedDocument& document : documents) {
      // A writer takes a new sheet with the page that comes next.
      SetUpSheet(writer, document);
      for (const PrintedPage& page : document.pages) painter.Paint(page);
    }
    painter.End();
  }
  if (bytes.size() == 0) throw Fault(FaultKind::file, file.string() + ": there is no page to write");
  WriteFileAtomically(file,
                      std::string_view(bytes.data().constData(), static_cast<std::size_t>(bytes.size())));
}

}  // namespace rbt
