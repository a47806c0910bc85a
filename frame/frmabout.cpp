#include "frame/frmabout.h"

#include "services/language.h"
#include "services/openexternal.h"
#include "services/texts.h"
#include "shell/languagefonts.h"
#include "shell/picturestore.h"
#include "ui_frmabout.h"

namespace docbench {
namespace {

constexpr int kPictureSize = 64;
constexpr char kVersion[] = DOCBENCH_VERSION;
constexpr char kVendorPage[] = "https://docbench.tessaforma.example/";

}  // namespace

frmAbout::frmAbout(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmAbout>()) {
    LoadResources();
    ui_->setupUi(this);
    setWindowTitle(Tr(Text::About));
    ui_->cmdOK->setText(Tr(Text::Ok));
    ui_->cmdSysInfo->setText(Tr(Text::VendorPage));
    ui_->lblDescription->setText(Tr(Text::AboutDescription));
    ui_->lblTitle->setText(gAppTitle);
    ui_->lblDisclaimer->setText(Tr(Text::Disclaimer));
    ui_->lblVersion->setText(Tr(Text::Version) + u' ' + QLatin1String(kVersion));
    ui_->picIcon->setPixmap(PictureOf(QStringLiteral("docbench"))
                                .pixmap(QSize(kPictureSize, kPictureSize), devicePixelRatioF()));
    ApplyLanguageFonts(*this);
    QFont title = ui_->lblTitle->font();
    title.setPointSizeF(title.pointSizeF() * 1.4);
    title.setBold(true);
    ui_->lblTitle->setFont(title);
    connect(ui_->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui_->cmdSysInfo, &QPushButton::clicked, this, [] {
        OpenDocumentExternally(QStringLiteral("Open"), QStringLiteral("iexplore.exe"),
                               QLatin1String(kVendorPage), QStringLiteral("0"), 1);
    });
}

frmAbout::~frmAbout() = default;

}  // namespace docbench
