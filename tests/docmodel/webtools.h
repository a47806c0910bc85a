// What the tests of web folders share: a client, small files, and a user who is asked for
// passwords.
#pragma once

#include <QFile>
#include <QStringList>
#include <memory>
#include <optional>

#include "docmodel/access.h"

namespace docmodel {

inline std::unique_ptr<docbench::WebFolderClient> MakeClient(
    const docbench::WebClientSettings& settings = {}) {
    return Access().MakeWebFolderClient(settings);
}

inline void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("can't write %s", qPrintable(path));
}

inline QByteArray Read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

inline QStringList EntriesOf(docbench::WebFolderListing& listing) {
    QStringList urls;
    listing.Reset();
    for (QString url; listing.NextEntry(url);)
        urls.append(url);
    urls.sort();
    return urls;
}

// Gives its answers in order, then wants no more. Notes what it was asked and told.
class AnsweringUser : public docbench::CredentialSource {
public:
    explicit AnsweringUser(QList<docbench::Credentials> answers) : answers_(std::move(answers)) {}

    std::optional<docbench::Credentials> Ask(const QString& server, const QString& realm,
                                             int attempt) override {
        asked.append(QStringLiteral("%1 %2 %3").arg(server, realm).arg(attempt));
        if (answers_.isEmpty())
            return std::nullopt;
        return answers_.takeFirst();
    }
    void Accepted(const QString& server, const QString& realm,
                  const docbench::Credentials& credentials) override {
        accepted.append(QStringLiteral("%1 %2 %3").arg(server, realm, credentials.user));
    }

    QStringList asked;
    QStringList accepted;

private:
    QList<docbench::Credentials> answers_;
};

}  // namespace docmodel
