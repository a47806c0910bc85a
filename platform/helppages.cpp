#include "platform/helppages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <algorithm>

namespace docbench {
namespace {

QString ReadAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString FirstMatch(const QString& html, const char* pattern) {
    static constexpr auto kOptions =
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption;
    const auto match = QRegularExpression(QLatin1String(pattern), kOptions).match(html);
    return QTextDocumentFragment::fromHtml(match.captured(1)).toPlainText().simplified();
}

HelpPage ReadPage(const QString& file, int depth) {
    const QString html = ReadAll(file);
    HelpPage page;
    page.file = file;
    page.depth = depth;
    page.title = FirstMatch(html, "<title>(.*?)</title>");
    page.text = QTextDocumentFragment::fromHtml(html).toPlainText();
    const QString keywords = FirstMatch(html, "<meta\\s+name=\"keywords\"\\s+content=\"([^\"]*)\"");
    for (const QString& word : keywords.split(u',', Qt::SkipEmptyParts))
        page.keywords.append(word.trimmed());
    return page;
}

bool HoldsAll(const QString& text, const QStringList& words) {
    return std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

}  // namespace

HelpPages::HelpPages(const QString& folder)
    : contents_(QDir(folder).absoluteFilePath(QStringLiteral("contents.html"))) {
    static const QRegularExpression step(
        QStringLiteral("<(ul)\\b[^>]*>|<(/ul)>|<a\\s+href=\"([^\"#]+)\""),
        QRegularExpression::CaseInsensitiveOption);
    int depth = -1;
    const QString contents = ReadAll(contents_);
    for (auto found = step.globalMatch(contents); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        if (!match.captured(1).isEmpty())
            ++depth;
        else if (!match.captured(2).isEmpty())
            --depth;
        else if (const QString file = QDir(folder).absoluteFilePath(match.captured(3));
                 QFileInfo(file).isFile())
            pages_.push_back(ReadPage(file, qMax(depth, 0)));
    }
}

QString HelpPages::PageOf(const QString& topic) const {
    const auto find = [&](auto&& fits) -> QString {
        const auto page = std::find_if(pages_.begin(), pages_.end(), fits);
        return page == pages_.end() ? QString() : page->file;
    };
    const QString named = find(
        [&](const HelpPage& page) { return QFileInfo(page.file).completeBaseName() == topic; });
    const QString indexed = find(
        [&](const HelpPage& page) { return page.keywords.contains(topic, Qt::CaseInsensitive); });
    return !named.isEmpty() ? named : !indexed.isEmpty() ? indexed : contents_;
}

std::vector<int> HelpPages::Search(const QString& question) const {
    const QStringList words = question.simplified().split(u' ', Qt::SkipEmptyParts);
    std::vector<int> headed;
    std::vector<int> held;
    for (int i = 0; !words.isEmpty() && i < int(pages_.size()); ++i) {
        const HelpPage& page = pages_[size_t(i)];
        if (HoldsAll(page.title + u' ' + page.keywords.join(u' '), words))
            headed.push_back(i);
        else if (HoldsAll(page.text, words))
            held.push_back(i);
    }
    headed.insert(headed.end(), held.begin(), held.end());
    return headed;
}

}  // namespace docbench
