#include "docmodel/propertyreadahead.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QRunnable>
#include <algorithm>
#include <utility>

#include "docmodel/package.h"
#include "docmodel/parallel.h"
#include "docmodel/propertyrecord.h"

namespace docmodel {

namespace {

constexpr size_t kFarthest = 256;  // documents

bool IsInState(int folder, const QByteArray& name, const FileState& state) {
    struct stat status;
    return fstatat(folder, name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           StateOf(status) == state;
}

}  // namespace

ReadProperties ReadPropertiesAt(int folder, const char* file, const QString& path) {
    const Package package = Package::OpenAt(folder, file, path);
    return {StateOf(package.Status()), ReadPropertyRecord(package)};
}

class PropertyReadAhead::Helper : public QRunnable {
public:
    explicit Helper(PropertyReadAhead& ahead) : ahead_(ahead) { setAutoDelete(false); }
    void run() override {
        ahead_.ReadAll();
        ahead_.ended_.release();
    }

private:
    PropertyReadAhead& ahead_;
};

PropertyReadAhead::PropertyReadAhead(int folder, QString prefix, std::vector<Document> documents)
    : folder_(folder), prefix_(std::move(prefix)) {
    slots_.reserve(documents.size());
    byName_.reserve(qsizetype(documents.size()));
    for (Document& document : documents) {
        slots_.push_back(std::make_unique<Slot>());
        slots_.back()->document = std::move(document);
        slots_.back()->position = slots_.size() - 1;
        byName_.insert(slots_.back()->document.name, slots_.back().get());
    }
}

PropertyReadAhead::~PropertyReadAhead() {
    stops_ = true;
    ++asked_;
    asked_.notify_all();
    QThreadPool& pool = *QThreadPool::globalInstance();
    const auto started = std::count_if(helpers_.begin(), helpers_.end(), [&](const auto& helper) {
        return !pool.tryTake(helper.get());
    });
    ended_.acquire(int(started));
}

void PropertyReadAhead::Start() {
    if (!helpers_.empty())
        return;
    while (helpers_.size() + 1 < ThreadsFor(slots_.size())) {
        helpers_.push_back(std::make_unique<Helper>(*this));
        QThreadPool::globalInstance()->start(helpers_.back().get());
    }
}

void PropertyReadAhead::ReadAll() {
    for (;;) {
        const size_t asked = asked_;
        if (stops_ || next_ >= slots_.size())
            return;
        if (!ReadNext())
            asked_.wait(asked);
    }
}

bool PropertyReadAhead::ReadNext() {
    size_t i = next_;
    while (i < std::min(slots_.size(), asked_ + kFarthest) && !stops_) {
        if (!next_.compare_exchange_weak(i, i + 1))
            continue;
        Slot& slot = *slots_[i++];
        Stage stage = Waiting;
        if (!slot.stage.compare_exchange_strong(stage, Reading))
            continue;  // whoever asks was faster
        slot.stage = ReadInto(slot);
        slot.stage.notify_all();
        return true;
    }
    return false;
}

PropertyReadAhead::Stage PropertyReadAhead::ReadInto(Slot& slot) const {
    const Document& document = slot.document;
    if (document.known && IsInState(folder_, document.name, *document.known))
        return Left;
    try {
        slot.outcome.properties = ReadPropertiesAt(folder_, document.name.constData(),
                                                   prefix_ + QString::fromUtf8(document.name));
        return Read;
    } catch (const DocumentError& error) {
        slot.outcome.failure = error.Description();
        return Read;
    } catch (const std::exception&) {
        return Left;  // it comes again where it can be raised
    }
}

std::optional<PropertyReadAhead::Outcome> PropertyReadAhead::Take(const QByteArray& name) {
    Slot* const slot = byName_.value(name);
    if (!slot)
        return std::nullopt;
    if (slot->position >= asked_) {
        asked_ = slot->position + 1;
        asked_.notify_all();
    }
    Stage stage = Waiting;
    if (slot->stage.compare_exchange_strong(stage, Left))
        return std::nullopt;
    while (slot->stage == Reading && ReadNext()) {
    }
    slot->stage.wait(Reading);
    if (slot->stage.exchange(Left) != Read)
        return std::nullopt;
    return std::move(slot->outcome);
}

}  // namespace docmodel
