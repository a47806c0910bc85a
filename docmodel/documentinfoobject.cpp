#include "docmodel/documentinfoobject.h"

#include <QLocale>
#include <utility>

namespace docmodel {

namespace {

// A stored time as the user reads it; what is no whole time, such as a year alone, as it stands.
QString ShownTime(const QString& stored) {
    const QDateTime time = QDateTime::fromString(stored, Qt::ISODateWithMs);
    return time.isValid() ? QLocale().toString(time.toLocalTime(), QLocale::ShortFormat) : stored;
}

}  // namespace

DocumentInfoObject::State::State(const CoreProperties& core, QList<CustomProperty> properties,
                                 LockRecord record)
    : summary(core.Texts()),
      summaryAtOpen(summary),
      created(core.Created()),
      modified(core.Modified()),
      lastSavedBy(core.LastSavedBy()),
      custom(std::move(properties)),
      lock(std::move(record)) {}

bool DocumentInfoObject::Open(const QString& path) {
    state_.reset();
    path_ = path;
    try {
        const Package package = Package::Open(path);
        const PartFinder parts(package);
        const std::optional<DocumentPart> tables = ReadTables(parts);
        const std::optional<CoreProperties> core = ReadCore(parts);
        const std::optional<CustomProperties> custom = ReadCustom(parts);
        const CoreProperties nothing;
        if (tables || core || custom)
            state_.emplace(core ? *core : nothing,
                           custom ? custom->Properties() : QList<CustomProperty>(),
                           tables ? tables->Lock() : LockRecord());
    } catch (const DocumentError&) {
        // A file with no readable record is an answer here and no error.
        state_.reset();
    }
    return state_.has_value();
}

DocumentInfoObject::State& DocumentInfoObject::Bound() {
    if (!state_)
        throw DocumentError(path_.given.isEmpty()
                                ? QStringLiteral("No document is open. Open one first.")
                                : QStringLiteral("The document %1 is not open, as its properties "
                                                 "could not be read. Open it again.")
                                      .arg(path_.given));
    return *state_;
}

void DocumentInfoObject::SetField(SummaryField field, const QString& text) {
    State& state = Bound();
    // Also when it holds what no document should: others have written it.
    if (text == state.summary[size_t(field)])
        return;
    RequireXmlText(text, path_.given, NameOf(field));
    const QString stored = WithXmlLineEnds(text);
    const QString& atOpen = state.summaryAtOpen[size_t(field)];
    // What is stored may hold other line ends than are written: given back, it is no change.
    state.summary[size_t(field)] = WithXmlLineEnds(atOpen) == stored ? atOpen : stored;
}

QString DocumentInfoObject::GetTitle() {
    return Bound().summary[size_t(SummaryField::Title)];
}

void DocumentInfoObject::SetTitle(const QString& text) {
    SetField(SummaryField::Title, text);
}

QString DocumentInfoObject::GetAuthor() {
    return Bound().summary[size_t(SummaryField::Author)];
}

void DocumentInfoObject::SetAuthor(const QString& text) {
    SetField(SummaryField::Author, text);
}

QString DocumentInfoObject::GetComments() {
    return Bound().summary[size_t(SummaryField::Comments)];
}

void DocumentInfoObject::SetComments(const QString& text) {
    SetField(SummaryField::Comments, text);
}

QString DocumentInfoObject::GetKeywords() {
    return Bound().summary[size_t(SummaryField::Keywords)];
}

void DocumentInfoObject::SetKeywords(const QString& text) {
    SetField(SummaryField::Keywords, text);
}

QString DocumentInfoObject::GetSubject() {
    return Bound().summary[size_t(SummaryField::Subject)];
}

void DocumentInfoObject::SetSubject(const QString& text) {
    SetField(SummaryField::Subject, text);
}

QString DocumentInfoObject::GetCreated() {
    return ShownTime(Bound().created);
}

QString DocumentInfoObject::GetLastSavedBy() {
    return Bound().lastSavedBy;
}

QString DocumentInfoObject::GetLastSaved() {
    return ShownTime(Bound().modified);
}

int DocumentInfoObject::GetCustomCount() {
    return int(Bound().custom.Properties().size());
}

CustomProperty DocumentInfoObject::GetCustomProperty(int index) {
    return Bound().custom.At(index, path_.given);
}

bool DocumentInfoObject::SetCustomProperty(const QString& name, const QVariant& value) {
    return Bound().custom.Set(name, value, path_.given);
}

bool DocumentInfoObject::DeleteCustomProperty(const QString& name) {
    return Bound().custom.Delete(name, path_.given);
}

void DocumentInfoObject::ApplyLock(DocumentPart& tables) const {
    LockRecord lock = tables.Lock();
    if (state_->lockChanged)
        lock.locked = state_->lock.locked;
    if (state_->lockUserChanged)
        lock.user = state_->lock.user;
    if (state_->lockChanged || state_->lockUserChanged)
        tables.SetLock(lock);
}

void DocumentInfoObject::Save() {
    const State& state = Bound();
    DocumentChange change(path_);
    DocumentContent& newest = change.Content();
    if (state.summary != state.summaryAtOpen) {
        change.RequireUnchanged(StampOf(newest.Core().Texts()), StampOf(state.summaryAtOpen),
                                QStringLiteral("summary"));
        for (size_t field = 0; field < state.summary.size(); ++field)
            if (state.summary[field] != state.summaryAtOpen[field])
                newest.Core().SetText(SummaryField(field), state.summary[field]);
    }
    if (state.custom.IsChanged()) {
        change.RequireUnchanged(StampOf(newest.Custom().Properties()), state.custom.StampAtOpen(),
                                QStringLiteral("list of custom properties"));
        state.custom.ApplyTo(newest.Custom());
    }
    ApplyLock(newest.Tables());
    QList<CustomProperty> custom = newest.Custom().Properties();
    change.Commit();
    Renew(newest, std::move(custom));
}

// What was not written stays as it was at Open: renewed, it would let a later save overwrite work
// of others that nobody has seen here.
void DocumentInfoObject::Renew(DocumentContent& newest, QList<CustomProperty> custom) {
    State& state = *state_;
    const CoreProperties& core = newest.Core();
    if (state.summary != state.summaryAtOpen)
        state.summary = state.summaryAtOpen = core.Texts();
    if (state.custom.IsChanged())
        state.custom = PropertySet(std::move(custom));
    state.created = core.Created();
    state.modified = core.Modified();
    state.lastSavedBy = core.LastSavedBy();
    state.lockChanged = false;
    state.lockUserChanged = false;
}

bool DocumentInfoObject::GetLocked() {
    return Bound().lock.locked;
}

void DocumentInfoObject::SetLocked(bool locked) {
    State& state = Bound();
    state.lock.locked = locked;
    state.lockChanged = true;
}

QString DocumentInfoObject::GetLockedBy() {
    return Bound().lock.user;
}

void DocumentInfoObject::SetLockedBy(const QString& user) {
    State& state = Bound();
    RequireXmlText(user, path_.given, QStringLiteral("name of the lock's owner"));
    state.lock.user = user;
    state.lockUserChanged = true;
}

QByteArray DocumentInfoObject::GetStamp(PropertyGroup group) {
    const State& state = Bound();
    return group == PropertyGroup::Summary ? StampOf(state.summaryAtOpen)
                                           : state.custom.StampAtOpen();
}

}  // namespace docmodel
