#include "platform/urlfileopen.h"

#include <QApplication>
#include <QCollator>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcut>
#include <QUrl>

#include "services/docaccess.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/settingsstore.h"
#include "services/texts.h"
#include "services/webauthority.h"
#include "services/webcopies.h"
#include "shell/pathcombo.h"
#include "shell/picturestore.h"
#include "shell/treepictures.h"
#include "shell/waitcursor.h"

namespace docbench {
namespace {

constexpr int kAddressRole = Qt::UserRole;
constexpr int kRemembered = 10;  // addresses
const char kAddressesKey[] = "Software\\Tessaforma\\TessaformaDocbench\\Web Folders";

std::unique_ptr<SettingsKey> AddressesKey() {
    return SettingsKey::Open(SettingsKey::Hive::CurrentUser, QLatin1String(kAddressesKey));
}

QStringList RememberedAddresses() {
    QStringList addresses;
    const auto key = AddressesKey();
    for (int i = 0; key && i < kRemembered; ++i) {
        const QString address = key->Text(QString::number(i)).value_or(QString());
        if (!address.isEmpty())
            addresses.append(address);
    }
    return addresses;
}

QString NoSlash(const QString& folder) {
    return folder.endsWith(u'/') ? folder.chopped(1) : folder;
}

// The folder above; empty for the root of a server.
QString ParentOf(const QString& folder) {
    const QString above = UrlFolder(NoSlash(folder));
    const qsizetype host = folder.indexOf(QLatin1String("//")) + 2;
    return above.size() > host ? above : QString();
}

// Why an address can't be gone to, in words; empty when it can. The words never repeat it: what
// looks wrong may hold a password.
QString ReasonAgainst(const QString& address) {
    const QUrl url(address);
    if (HasPassword(address))
        return PasswordInAddressText();
    const bool web =
        url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    if (!url.isValid() || !web || url.host().isEmpty())
        return URLFileOpen::tr(
            "This is no address of a web folder. Type one that begins with https:// or http://, "
            "such as https://server/folder/.");
    return {};
}

void SortByName(QStringList& addresses) {
    // The locale of no language sorts by bytes.
    const QLocale user;
    QCollator order(user.language() == QLocale::C ? QLocale(QLocale::English) : user);
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(addresses.begin(), addresses.end(), [&](const QString& one, const QString& other) {
        return order.compare(UrlFileName(NoSlash(one)), UrlFileName(NoSlash(other))) < 0;
    });
}

}  // namespace

URLFileOpen::URLFileOpen(QWidget* parent)
    : QWidget(parent),
      address_(new PathCombo(this)),
      entries_(new QListWidget(this)),
      types_(new QComboBox(this)),
      open_(new QPushButton(this)),
      up_(new QPushButton(this)),
      error_(new QLabel(this)) {
    MakeLayout();
    address_->addItems(RememberedAddresses());
    address_->setCurrentIndex(address_->count() > 0 ? 0 : -1);
    if (address_->count() == 0)
        address_->setEditText(QStringLiteral("https://"));
    connect(address_, &PathCombo::Entered, this, &URLFileOpen::Go);
    connect(address_, &PathCombo::Chosen, this, &URLFileOpen::Go);
    connect(entries_, &QListWidget::itemActivated, this, &URLFileOpen::Activate);
    connect(entries_, &QListWidget::currentItemChanged, this,
            [this](const QListWidgetItem* item) { open_->setEnabled(item != nullptr); });
    connect(types_, &QComboBox::currentIndexChanged, this, [this] {
        ListEntries();
        Q_EMIT Event(QStringLiteral("FileTypeChangeEvent"));
    });
    connect(up_, &QPushButton::clicked, this, [this] { ShowFolder(ParentOf(folder_)); });
    // A shortcut and no key of the form: the list and the address line would take the key first.
    connect(new QShortcut(Qt::ALT | Qt::Key_Up, this), &QShortcut::activated, this,
            [this] { ShowFolder(ParentOf(folder_)); });
    connect(open_, &QPushButton::clicked, this, [this] { Activate(entries_->currentItem()); });
    connect(findChild<QPushButton*>(QStringLiteral("cancel")), &QPushButton::clicked, this,
            [this] { Q_EMIT Event(QStringLiteral("CancelEvent")); });
}

void URLFileOpen::MakeLayout() {
    address_->setObjectName(QStringLiteral("address"));
    address_->setAccessibleName(tr("Address"));
    address_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    up_->setObjectName(QStringLiteral("up"));
    up_->setIcon(PictureOf(QStringLiteral("up")));
    up_->setToolTip(tr("Folder above (Alt+Up)"));
    up_->setAccessibleName(tr("Folder above"));
    up_->setEnabled(false);
    entries_->setObjectName(QStringLiteral("entries"));
    entries_->setAccessibleName(tr("Folder"));
    types_->setObjectName(QStringLiteral("types"));
    types_->setAccessibleName(tr("File types"));
    open_->setObjectName(QStringLiteral("open"));
    open_->setText(Tr(Text::MenuOpen));
    open_->setEnabled(false);
    open_->setAutoDefault(false);
    auto* cancel = new QPushButton(Tr(Text::Cancel), this);
    cancel->setObjectName(QStringLiteral("cancel"));
    cancel->setAutoDefault(false);
    error_->setObjectName(QStringLiteral("error"));
    error_->setWordWrap(true);
    error_->setTextFormat(Qt::PlainText);
    error_->hide();
    auto* layout = new QGridLayout(this);
    layout->addWidget(address_, 0, 0, 1, 3);
    layout->addWidget(up_, 0, 3);
    layout->addWidget(entries_, 1, 0, 1, 4);
    layout->addWidget(error_, 2, 0, 1, 4);
    layout->addWidget(types_, 3, 0);
    layout->addWidget(open_, 3, 2);
    layout->addWidget(cancel, 3, 3);
    layout->setColumnStretch(0, 1);
    layout->setRowStretch(1, 1);
    setFocusProxy(address_);
}

void URLFileOpen::SetType(const QString&) {}

void URLFileOpen::AddFileType(const QString& type) {
    types_->addItem(type);
}

void URLFileOpen::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Q_EMIT Event(QStringLiteral("CancelEvent"));
    else if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QWidget::keyPressEvent(event);  // Enter is answered by what has the focus, not by the form
}

void URLFileOpen::Go(const QString& typed) {
    QString address = typed.trimmed();
    if (!address.contains(QLatin1String("://")))
        address.prepend(QStringLiteral("https://"));
    if (const QString reason = ReasonAgainst(address); !reason.isEmpty())
        return ShowError(reason);
    if (DocTypeOf(address) != DocType::None)
        Open(address);
    else
        ShowFolder(address.endsWith(u'/') ? address : address + u'/');
}

void URLFileOpen::ShowFolder(const QString& url) {
    if (url.isEmpty())
        return;
    const WaitCursor wait;
    std::unique_ptr<WebFolderListing> listing = gWebFolder ? gWebFolder->ListFolder(url) : nullptr;
    if (!listing || !listing->Reset())
        return ShowError(gWebFolder ? gWebFolder->LastError()
                                    : tr("Web folders can't be reached: the document library is "
                                         "not loaded."));
    folder_ = url;
    folders_.clear();
    files_.clear();
    QString entry;
    while (listing->NextEntry(entry)) {
        QString kind;
        const bool known = listing->GetProperty(entry, QStringLiteral("DAV:"),
                                                QStringLiteral("resourcetype"), kind);
        (known && kind == QLatin1String("File") ? files_ : folders_).append(entry);
    }
    SortByName(folders_);
    SortByName(files_);
    error_->hide();
    address_->setEditText(folder_);
    up_->setEnabled(!ParentOf(folder_).isEmpty());
    Remember(folder_);
    ListEntries();
    entries_->setFocus();
}

void URLFileOpen::ListEntries() {
    entries_->clear();
    const auto add = [this](const QString& url, const QIcon& icon) {
        auto* item = new QListWidgetItem(icon, UrlFileName(NoSlash(url)), entries_);
        item->setData(kAddressRole, url);
    };
    for (const QString& folder : folders_)
        add(folder.endsWith(u'/') ? folder : folder + u'/', PictureOf(QStringLiteral("folder")));
    for (const QString& file : files_) {
        if (Matches(UrlFileName(file)))
            add(file, PictureOf(DocumentPicture(file, false)));
    }
    if (entries_->count() > 0)
        entries_->setCurrentRow(0);
}

bool URLFileOpen::Matches(const QString& name) const {
    const QString type = types_->currentText();
    if (type.isEmpty())  // no type was added
        return DocTypeOf(name) != DocType::None;
    const QString patterns = type.mid(type.lastIndexOf(u'(') + 1).chopped(1);
    for (const QString& pattern : patterns.split(u',')) {
        const auto wildcard = QRegularExpression::fromWildcard(pattern.trimmed());
        if (wildcard.match(name.toLower()).hasMatch())
            return true;
    }
    return false;
}

void URLFileOpen::Activate(const QListWidgetItem* item) {
    if (!item)
        return;
    const QString url = item->data(kAddressRole).toString();
    if (url.endsWith(u'/'))
        ShowFolder(url);
    else
        Open(url);
}

void URLFileOpen::Open(const QString& url) {
    url_ = url;
    Remember(UrlFolder(url));
    Q_EMIT Event(QStringLiteral("OpenEvent"));
}

void URLFileOpen::ShowError(const QString& text) {
    error_->setText(text);
    error_->show();
}

void URLFileOpen::Remember(const QString& folder) {
    QStringList addresses = RememberedAddresses();
    addresses.removeAll(folder);
    addresses.prepend(folder);
    const auto key = AddressesKey();
    for (int i = 0; key && i < qMin(kRemembered, int(addresses.size())); ++i)
        key->SetText(QString::number(i), addresses[i]);
}

}  // namespace docbench
