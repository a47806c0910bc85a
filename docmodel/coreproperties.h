// The summary of a document: the part docProps/core.xml.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <array>

#include "docmodel/xml.h"

namespace docmodel {

enum class SummaryField { Title, Author, Comments, Keywords, Subject };
inline constexpr int kSummaryFields = 5;
using Summary = std::array<QString, kSummaryFields>;  // by SummaryField

class CoreProperties {
public:
    CoreProperties();  // with nothing in it
    // `part` is its name, for error texts. Raises DocumentError when it can't be understood.
    CoreProperties(const QByteArray& bytes, const QString& file, const QByteArray& part);

    QString Text(SummaryField field) const;
    void SetText(SummaryField field, const QString& text);
    Summary Texts() const;

    // As stored, in ISO 8601; empty if it isn't.
    QString Created() const;
    QString Modified() const;
    QString LastSavedBy() const;
    void SetCreated(const QDateTime& time);
    void SetModified(const QDateTime& time, const QString& user);

    QByteArray Bytes() const { return xml_.Bytes(); }

private:
    void SetTime(const char* name, const QDateTime& time);
    XmlPart xml_;
};

// The title of a field as an error text says it.
QString NameOf(SummaryField field);

// Two equal stamps stand for equal texts.
QByteArray StampOf(const Summary& texts);

}  // namespace docmodel
