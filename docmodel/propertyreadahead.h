// Reads the properties of a folder's documents on further threads, ahead of whoever asks for them.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QSemaphore>
#include <QString>
#include <QThreadPool>
#include <atomic>
#include <memory>
#include <optional>
#include <vector>

#include "docmodel/filestate.h"

class QRunnable;

namespace docmodel {

// What reading a document gave. Its file was in that state just before.
struct ReadProperties {
    FileState state = {};
    QByteArray record = {};
};

// Raises DocumentError. `folder` and `file` are where the document stands, `path` stands in error
// texts.
ReadProperties ReadPropertiesAt(int folder, const char* file, const QString& path);

class PropertyReadAhead {
public:
    struct Document {
        QByteArray name;
        std::optional<FileState> known;  // not to be read as long as it is in that state
    };

    // `folder` must stay open for as long as this lives; `prefix` is what its documents' paths
    // begin with.
    PropertyReadAhead(int folder, QString prefix, std::vector<Document> documents);
    ~PropertyReadAhead();  // waits for the documents that are being read
    PropertyReadAhead(const PropertyReadAhead&) = delete;
    PropertyReadAhead& operator=(const PropertyReadAhead&) = delete;

    void Start();  // once there is something to read; again does nothing

    struct Outcome {
        ReadProperties properties = {};
        QString failure = {};  // why there are none; empty if there are
    };
    // What was read of a document. While another thread is at it, this one reads some of those
    // behind. None when nobody has begun: then the caller reads it, and nobody else will.
    std::optional<Outcome> Take(const QByteArray& name);

private:
    enum Stage { Waiting, Reading, Read, Left };
    struct Slot {
        Document document;
        Outcome outcome;
        std::atomic<Stage> stage = Waiting;
        size_t position = 0;
    };
    class Helper;
    bool ReadNext();  // false when there is none left, or none near enough
    void ReadAll();
    Stage ReadInto(Slot& slot) const;

    const int folder_;
    const QString prefix_;
    std::vector<std::unique_ptr<Slot>> slots_;
    QHash<QByteArray, Slot*> byName_;
    std::atomic<size_t> next_ = 0;
    // Behind the last document that was asked for: nobody reads far ahead of it, however long the
    // next question takes to come.
    std::atomic<size_t> asked_ = 0;
    std::atomic<bool> stops_ = false;
    std::vector<std::unique_ptr<QRunnable>> helpers_;
    QSemaphore ended_;
};

}  // namespace docmodel
