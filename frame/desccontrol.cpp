#include "frame/desccontrol.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include "services/helpviewer.h"
#include "services/language.h"
#include "services/seams.h"
#include "services/texts.h"
#include "shell/languagefonts.h"
#include "shell/twips.h"

namespace docbench {
namespace {

constexpr int kIconSize = 32;
constexpr int kInset = TwipsToPixels(70);
constexpr int kBesideLabel = TwipsToPixels(280);

}  // namespace

DescControl::DescControl(QWidget* parent)
    : QWidget(parent),
      DescriptionBox(new QFrame(this)),
      descriptionIcon(new QLabel(DescriptionBox)),
      labDescription(new QLabel(DescriptionBox)),
      helpbutton(new QPushButton(DescriptionBox)) {
    LoadResources();
    DescriptionBox->setObjectName(QStringLiteral("DescriptionBox"));
    DescriptionBox->setFrameShape(QFrame::StyledPanel);
    descriptionIcon->setObjectName(QStringLiteral("descriptionIcon"));
    labDescription->setObjectName(QStringLiteral("labDescription"));
    labDescription->setWordWrap(true);
    labDescription->setTextFormat(Qt::PlainText);
    labDescription->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    labDescription->setText(QStringLiteral("XXXXXXXXXXXXXXXXX"));  // until a pane says what it does
    helpbutton->setObjectName(QStringLiteral("helpbutton"));
    helpbutton->setText(Tr(Text::Help));
    helpbutton->hide();
    connect(helpbutton, &QPushButton::clicked, this, &DescControl::ShowHelp);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    ApplyLanguageFonts(*this);
}

void DescControl::text(const QString& tx) {
    labDescription->setText(tx + u' ');
    setAccessibleDescription(tx);
}

void DescControl::icon(const QIcon& ic) {
    descriptionIcon->setPixmap(ic.pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()));
}

void DescControl::SetHelpFile(const QString& fname, const QString& key) {
    helpFileName = fname;
    helpKey = key;
    helpbutton->show();
    Layout();
}

// Three heights of the button, which takes the middle one; enough for three lines of text.
QSize DescControl::sizeHint() const {
    return {400, 3 * qMax(helpbutton->sizeHint().height(), fontMetrics().lineSpacing() + 4)};
}

void DescControl::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Layout();
}

void DescControl::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGeometry();
        Layout();
    }
}

void DescControl::Layout() {
    DescriptionBox->setGeometry(rect());
    descriptionIcon->setGeometry(kInset, (height() - kIconSize) / 2, kIconSize, kIconSize);
    const QSize button(helpbutton->sizeHint().width(), height() / 3);
    helpbutton->setGeometry(width() - button.width() * 3 / 2, (height() - button.height()) / 2,
                            button.width(), button.height());
    const int left = kInset + kIconSize + kInset;
    const int right = helpbutton->isHidden() ? width() : helpbutton->x();
    labDescription->setGeometry(left, 0, qMax(0, right - left - kBesideLabel), height());
}

void DescControl::ShowHelp() {
    if (!helpFileName.isEmpty() && gSeams.help)
        gSeams.help->Open(helpFileName, helpKey);
}

}  // namespace docbench
