#include "platform/helpbrowser.h"

#include <QApplication>
#include <QBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>

namespace docbench {
namespace {

constexpr int kFileRole = Qt::UserRole;

}  // namespace

HelpBrowser::HelpBrowser()
    : pages_(QString()), search_(new QLineEdit), list_(new QTreeWidget), page_(new QTextBrowser) {
    setObjectName(QStringLiteral("HelpWindow"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);  // it ends with the program, not the reverse
    auto* tools = new QHBoxLayout;
    MakeTools(*tools);
    tools->addWidget(search_, 1);
    search_->setObjectName(QStringLiteral("search"));
    search_->setPlaceholderText(tr("Search (Ctrl+F)"));
    search_->setAccessibleName(tr("Search"));
    search_->setClearButtonEnabled(true);
    list_->setObjectName(QStringLiteral("contents"));
    list_->setAccessibleName(tr("Contents"));
    list_->setHeaderHidden(true);
    list_->header()->setStretchLastSection(true);
    page_->setObjectName(QStringLiteral("page"));
    page_->setOpenExternalLinks(true);
    page_->document()->setDocumentMargin(16);
    auto* parts = new QSplitter;
    parts->addWidget(list_);
    parts->addWidget(page_);
    parts->setStretchFactor(1, 1);
    parts->setSizes({240, 680});
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(tools);
    layout->addWidget(parts, 1);
    resize(920, 680);
    MakeShortcuts();
    connect(search_, &QLineEdit::textChanged, this, &HelpBrowser::ListFound);
    connect(list_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item)
            ShowPage(item->data(0, kFileRole).toString());
    });
    // A page that the reader left by a link comes back by a click on the entry it is under.
    connect(list_, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* item) { ShowPage(item->data(0, kFileRole).toString()); });
    connect(page_, &QTextBrowser::sourceChanged, this, &HelpBrowser::Follow);
    page_->setFocus();
}

void HelpBrowser::MakeTools(QLayout& tools) {
    struct Tool {
        const char* name;
        QString text;
        QStyle::StandardPixmap picture;
        void (QTextBrowser::*act)();
    };
    const Tool all[] = {
        {"back", tr("Back"), QStyle::SP_ArrowBack, &QTextBrowser::backward},
        {"forward", tr("Forward"), QStyle::SP_ArrowForward, &QTextBrowser::forward}};
    for (const Tool& tool : all) {
        auto* button = new QToolButton;
        button->setObjectName(QLatin1String(tool.name));
        button->setToolTip(tool.text);
        button->setAccessibleName(tool.text);
        button->setIcon(style()->standardIcon(tool.picture));
        button->setEnabled(false);
        connect(button, &QToolButton::clicked, page_, tool.act);
        connect(page_,
                tool.act == &QTextBrowser::backward ? &QTextBrowser::backwardAvailable
                                                    : &QTextBrowser::forwardAvailable,
                button, &QToolButton::setEnabled);
        tools.addWidget(button);
    }
    auto* home = new QToolButton;
    home->setObjectName(QStringLiteral("home"));
    home->setToolTip(tr("Contents"));
    home->setAccessibleName(tr("Contents"));
    home->setIcon(style()->standardIcon(QStyle::SP_DirHomeIcon));
    connect(home, &QToolButton::clicked, this, [this] { ShowPage(pages_.Contents()); });
    tools.addWidget(home);
}

void HelpBrowser::MakeShortcuts() {
    connect(new QShortcut(QKeySequence::Back, this), &QShortcut::activated, page_,
            &QTextBrowser::backward);
    connect(new QShortcut(QKeySequence::Forward, this), &QShortcut::activated, page_,
            &QTextBrowser::forward);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, search_,
            [this] { search_->setFocus(); });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::ZoomIn, this), &QShortcut::activated, page_,
            [this] { page_->zoomIn(); });
    connect(new QShortcut(QKeySequence::ZoomOut, this), &QShortcut::activated, page_,
            [this] { page_->zoomOut(); });
}

void HelpBrowser::SetPages(HelpPages pages) {
    pages_ = std::move(pages);
    ListFound(search_->text());
}

void HelpBrowser::ShowPage(const QString& file, const QString& section) {
    QUrl url = QUrl::fromLocalFile(file);
    if (!section.isEmpty())
        url.setFragment(section);
    if (url != page_->source())
        page_->setSource(url, QTextDocument::HtmlResource);
}

void HelpBrowser::ListContents() {
    std::vector<QTreeWidgetItem*> above;  // the last item at each depth
    for (const HelpPage& page : pages_.Pages()) {
        above.resize(qMin(size_t(page.depth), above.size()));
        auto* item = above.empty() ? new QTreeWidgetItem(list_) : new QTreeWidgetItem(above.back());
        item->setText(0, page.title);
        item->setData(0, kFileRole, page.file);
        above.push_back(item);
    }
    list_->expandAll();
}

void HelpBrowser::ListFound(const QString& question) {
    const QSignalBlocker quiet(list_);
    list_->clear();
    if (question.simplified().isEmpty())
        ListContents();
    else
        ListHits(question);
    Follow(page_->source());
}

void HelpBrowser::ListHits(const QString& question) {
    for (const int found : pages_.Search(question)) {
        const HelpPage& page = pages_.Pages()[size_t(found)];
        auto* item = new QTreeWidgetItem(list_);
        item->setText(0, page.title);
        item->setData(0, kFileRole, page.file);
    }
}

void HelpBrowser::Follow(const QUrl& page) {
    const QString title = page_->documentTitle();
    setWindowTitle(title);
    const QSignalBlocker quiet(list_);
    QTreeWidgetItem* fitting = nullptr;
    for (QTreeWidgetItemIterator item(list_); *item; ++item) {
        if (QUrl::fromLocalFile((*item)->data(0, kFileRole).toString()) ==
            page.adjusted(QUrl::RemoveFragment))
            fitting = *item;
    }
    list_->setCurrentItem(fitting);  // a page that is not listed leaves no other entry marked
}

}  // namespace docbench
