// The index: a database in the user's cache folder that remembers, folder by folder, which names a
// document's references lead to, and its properties. It is only there to save time.
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>

namespace docmodel {

// Where the index is and how far its entries are believed. Set before the first search.
struct IndexSettings {
    bool isOn = true;
    QString file;
    std::optional<qint64> grain;  // nanoseconds; in place of what the disk's kind tells
};

// Made once from the environment: DOCBENCH_NO_INDEX switches the index off; the file lies in the
// user's cache folder (XDG_CACHE_HOME).
IndexSettings& GlobalIndexSettings();

// No routine raises or waits for long: what can't be read is not known, and what can't be written
// is forgotten. A file that is no database of ours is replaced. Several programs may have it open.
class ReferenceIndex {
public:
    // What is remembered of a folder. A search reads and writes one of them and leaves the other
    // alone.
    enum class Facts { References, Properties };

    explicit ReferenceIndex(Facts facts = Facts::References);
    ~ReferenceIndex();
    ReferenceIndex(const ReferenceIndex&) = delete;
    ReferenceIndex& operator=(const ReferenceIndex&) = delete;

    bool IsUsable() const { return connection_ != nullptr; }
    // How long after a change a document on the disk of the open folder may be changed again
    // without looking changed, in nanoseconds. None where nothing may be believed or learned.
    std::optional<qint64> GrainFor(int folder) const;
    // What was stored last for the folder; empty if nothing is known.
    QByteArray Load(const QByteArray& folder);
    void Store(const QByteArray& folder, const QByteArray& documents);

private:
    struct Connection;
    void Open();
    void Replace();  // the file by a new one, once

    const Facts facts_;
    std::unique_ptr<Connection> connection_;  // null: goes on without an index
    bool isReplaced_ = false;
    bool canStore_ = true;
};

}  // namespace docmodel
