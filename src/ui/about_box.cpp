#include "ui/about_box.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

#include "commands/startup.h"

namespace zentrel::ui {

namespace {

// The icon beside the program's name, with the version below the name when asked for.
QLayout* Heading(QWidget* parent, bool withVersion) {
  auto* row = new QHBoxLayout;
  auto* icon = new QLabel(parent);
  icon->setPixmap(QPixmap(QStringLiteral(":/icons/zentrel.png"))
                      .scaled(64, 64, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  row->addWidget(icon, 0, Qt::AlignTop);
  auto* names = new QVBoxLayout;
  auto* title = new QLabel(
      withVersion ? QLatin1String(commands::kProgramName)
                  : QStringLiteral("%1 %2").arg(QLatin1String(commands::kProgramName),
                                                QLatin1String(commands::kProgramVersion)),
      parent);
  title->setObjectName(QStringLiteral("ProgramTitle"));
  QFont font = title->font();
  font.setPointSizeF(font.pointSizeF() * 1.6);
  font.setBold(true);
  title->setFont(font);
  names->addWidget(title);
  if (withVersion) {
    auto* version = new QLabel(QLatin1String(commands::kProgramVersion), parent);
    version->setObjectName(QStringLiteral("ProgramVersion"));
    names->addWidget(version);
  }
  names->addStretch();
  row->addLayout(names, 1);
  return row;
}

QLabel* Description(QWidget* parent) {
  auto* text = new QLabel(ProgramDescription(), parent);
  text->setObjectName(QStringLiteral("ProgramDescription"));
  text->setWordWrap(true);
  text->setMinimumWidth(380);
  return text;
}

}  // namespace

QString ProgramDescription() {
  return QStringLiteral(
      "Zentrel creates, improves and diagnoses the META tags of a web page. Load a page and it "
      "reports the page's title, words and keywords with their counts and densities and warns "
      "about missing or overlong keywords; edit the thirteen META tags, rebuild the page with a "
      "fresh TITLE and META block in its head, and save it.");
}

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle(QStringLiteral("About %1").arg(QLatin1String(commands::kProgramName)));
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(Heading(this, true));
  layout->addWidget(Description(this));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  layout->addWidget(buttons);
}

Frm_SplashScreen::Frm_SplashScreen(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("Frm_SplashScreen"));
  setWindowTitle(QLatin1String(commands::kProgramName));
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(Heading(this, false));
  layout->addWidget(Description(this));
  auto* start = new QPushButton(QStringLiteral("Lets Start"), this);
  start->setObjectName(QStringLiteral("Frm_SplashScreen_Start"));
  start->setDefault(true);
  connect(start, &QPushButton::clicked, this, &QDialog::accept);
  layout->addWidget(start, 0, Qt::AlignRight);
}

bool SplashWanted() {
  if (qEnvironmentVariableIntValue("ZENTREL_NO_SPLASH") == 1)
    return false;
  return QGuiApplication::platformName() != QLatin1String("offscreen");
}

}  // namespace zentrel::ui
