// A download's own file, until it is whole and takes its name.
#pragma once

#include <QCryptographicHash>
#include <QString>

#include "docmodel/siblingfile.h"
#include "docmodel/webversion.h"

namespace docmodel {

class WebReceiver {
public:
    // Raises DocumentError, as the others do, when the file can't be written.
    explicit WebReceiver(const QString& localPath);

    void Start(const WebAnswer& answer);
    void Take(const char* bytes, size_t count);
    void Expect(qint64 length) { expected_ = length; }  // instead of what the answer said
    bool KnowsLength() const { return expected_ >= 0; }
    bool IsWhole() const { return expected_ < 0 || expected_ == received_; }
    WebVersion Version() const;  // of what was received
    void Place();

private:
    const QString localPath_;
    SiblingFile file_;
    WebVersion version_;
    QCryptographicHash hash_;  // where nothing else tells versions apart
    qint64 expected_ = -1;
    qint64 received_ = 0;
};

}  // namespace docmodel
