#include "whereused/filemissingdialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "services/language.h"
#include "services/texts.h"
#include "shell/languagefonts.h"
#include "shell/picturestore.h"

namespace docbench {
namespace {

constexpr int kPictureSize = 48;
constexpr int kTextWidth = 420;

}  // namespace

FileMissingDialog::FileMissingDialog(QWidget* parent)
    : QDialog(parent), Label1(new QLabel(this)), Image1(new QLabel(this)) {
    LoadResources();
    setObjectName(QStringLiteral("FileMissingDialog"));
    setWindowTitle(gAppTitle);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setWordWrap(true);
    Label1->setTextFormat(Qt::PlainText);
    Label1->setMinimumWidth(kTextWidth);
    Image1->setObjectName(QStringLiteral("Image1"));
    Image1->setPixmap(PictureOf(QStringLiteral("warning"))
                          .pixmap(QSize(kPictureSize, kPictureSize), devicePixelRatioF()));
    auto* layout = new QGridLayout(this);
    layout->addWidget(Image1, 0, 0, Qt::AlignTop);
    layout->addWidget(Label1, 0, 1);
    layout->setColumnStretch(1, 1);
    auto* buttons = new QHBoxLayout;
    layout->addLayout(buttons, 1, 0, 1, 2);
    buttons->addStretch();
    const QString captions[kButtons] = {Tr(Text::Yes), Tr(Text::No), Tr(Text::NoToAll),
                                        Tr(Text::Cancel)};
    for (int i = 0; i < kButtons; ++i) {
        auto* button = new QPushButton(captions[i], this);
        button->setObjectName(QStringLiteral("Command1_%1").arg(i));
        connect(button, &QPushButton::clicked, this, [this, i] {
            Result = i;
            accept();
        });
        buttons->addWidget(button);
        Command1[size_t(i)] = button;
    }
    ApplyLanguageFonts(*this);
}

void FileMissingDialog::init(const QString& message) {
    Result = -1;
    Label1->setText(message);
}

void FileMissingDialog::SetNumberOfButton(int count) {
    if (count > kButtons)
        return;
    ButtonCount = count;
    for (int i = 0; i < kButtons; ++i)
        Command1[size_t(i)]->setVisible(i < count);
}

void FileMissingDialog::SetButton(int index, const QString& caption) {
    if (index >= 0 && index < ButtonCount)
        Command1[size_t(index)]->setText(caption);
}

}  // namespace docbench
