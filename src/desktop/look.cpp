// SPDX-License-Identifier: MIT
#include "desktop/look.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QLibraryInfo>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>
#include <QTranslator>

namespace rbt {

namespace {

constexpr int kFontPoints = 12;

/// Dark text on light ground throughout (contrast above 7 : 1); the focus is told by a frame and by colour.
constexpr const char* kStyleSheet = R"(
QPushButton {
  background: #ffffff; color: #10202e; border: 1px solid #8497a8; border-radius: 4px; padding: 5px 12px;
  outline: none;
}
QPushButton:hover { background: #f0f6fc; }
QPushButton:focus { background: #fff8d9; border: 2px solid #1457a8; padding: 4px 11px; }
QPushButton:pressed { background: #cfe0f1; }
QPushButton:disabled { background: #e4e8ec; color: #6a7580; border-color: #b9c3cc; }
QCheckBox, QRadioButton { border: 2px solid transparent; border-radius: 3px; padding: 1px 4px; }
QCheckBox:disabled, QRadioButton:disabled { color: #6a7580; }
QCheckBox:focus, QRadioButton:focus { background: #fff8d9; border-color: #1457a8; }
QGroupBox { border: 1px solid #9fb0bf; border-radius: 5px; margin-top: 0.7em; background: #e3ebf3; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 12px; }
QTableView { border: 2px solid #9fb0bf; }
QTableView:focus { border-color: #1457a8; }
QFrame#statusLine { background: #ffffff; border: 1px solid #b4c1cd; border-radius: 3px; }
QFrame#SSPanel1, QFrame#filterPanel, QFrame#pnlInputKai, QFrame#Frame1, QFrame#SSPanel4, QFrame#waitPanel {
  border: 1px solid #b4c1cd;
}
)";

QPalette Colours() {
  QPalette colours;
  const QColor ground("#e9eef3");
  const QColor text("#10202e");
  colours.setColor(QPalette::Window, ground);
  colours.setColor(QPalette::WindowText, text);
  colours.setColor(QPalette::Base, Qt::white);
  colours.setColor(QPalette::AlternateBase, QColor("#f3f6f9"));
  colours.setColor(QPalette::Text, text);
  colours.setColor(QPalette::Button, ground);
  colours.setColor(QPalette::ButtonText, text);
  colours.setColor(QPalette::Highlight, QColor("#1457a8"));
  colours.setColor(QPalette::HighlightedText, Qt::white);
  colours.setColor(QPalette::Disabled, QPalette::Base, QColor("#e4e8ec"));
  colours.setColor(QPalette::Disabled, QPalette::Text, QColor("#5a6570"));
  return colours;
}

/// Three bars in their section, one above two, on the blue of the focus.
QIcon ProgramIcon() {
  QIcon icon;
  for (const int side : {16, 24, 32, 48, 64, 128}) {
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 16.0, side / 16.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor("#1457a8"));
    painter.drawRoundedRect(QRectF(0.5, 0.5, 15.0, 15.0), 3.0, 3.0);
    painter.setBrush(Qt::white);
    for (const QPointF& bar : {QPointF(8.0, 5.0), QPointF(4.8, 10.6), QPointF(11.2, 10.6)}) {
      painter.drawEllipse(bar, 2.5, 2.5);
    }
    icon.addPixmap(picture);
  }
  return icon;
}

/// The toolkit's own dialogs speak Japanese where its translation is installed, else English.
void InstallTranslation() {
  auto* translator = new QTranslator(qApp);
  if (translator->load("qtbase_ja", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(translator);
  }
}

}  // namespace

void PrepareDesktop() {
  QApplication::setApplicationName("rbtally1");
  // No display name: the toolkit would put it behind every title.
  QApplication::setWindowIcon(ProgramIcon());
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QFont font;
  font.setFamilies({"ＭＳ ゴシック", "MS Gothic", "IPAGothic"});
  font.setStyleHint(QFont::Monospace);
  font.setPointSize(kFontPoints);
  QApplication::setFont(font);
  QApplication::setPalette(Colours());
  qApp->setStyleSheet(kStyleSheet);
  InstallTranslation();
}

}  // namespace rbt
