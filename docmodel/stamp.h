// A digest of a table's rows: two equal ones mean that nobody changed the table in between.
#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QString>

namespace docmodel {

class Stamp {
public:
    // Fields count with their lengths, so that no two tables run into the same bytes.
    Stamp& Add(const QString& text) {
        const QByteArray bytes = text.toUtf8();
        Add(qint64(bytes.size()));
        hash_.addData(bytes);
        return *this;
    }
    Stamp& Add(qint64 number) {
        hash_.addData(QByteArrayView(reinterpret_cast<const char*>(&number), sizeof number));
        return *this;
    }
    QByteArray Result() const { return hash_.result(); }

private:
    QCryptographicHash hash_{QCryptographicHash::Sha1};
};

}  // namespace docmodel
