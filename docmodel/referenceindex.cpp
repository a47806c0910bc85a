#include "docmodel/referenceindex.h"

#include <sys/stat.h>

#include <QAtomicInt>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QVariant>

#include "docmodel/filestate.h"

namespace docmodel {

namespace {

Q_LOGGING_CATEGORY(indexLog, "docmodel.index", QtInfoMsg)

constexpr char kCreate[] =
    "CREATE TABLE IF NOT EXISTS folders"
    " (path BLOB PRIMARY KEY NOT NULL, documents BLOB, properties BLOB)";

// By Facts.
struct Statements {
    const char* load;
    const char* store;
};
constexpr Statements kStatements[] = {
    {"SELECT documents FROM folders WHERE path = ?",
     "INSERT INTO folders (path, documents) VALUES (?, ?)"
     " ON CONFLICT (path) DO UPDATE SET documents = excluded.documents"},
    {"SELECT properties FROM folders WHERE path = ?",
     "INSERT INTO folders (path, properties) VALUES (?, ?)"
     " ON CONFLICT (path) DO UPDATE SET properties = excluded.properties"}};

// Readers and a writer don't wait for each other. Nothing is synced: after a power failure old or
// broken rows are found out as such when they are read.
constexpr const char* kPragmas[] = {"PRAGMA synchronous = OFF", "PRAGMA journal_mode = WAL",
                                    "PRAGMA wal_autocheckpoint = 2000"};

constexpr char kOptions[] = "QSQLITE_BUSY_TIMEOUT=100";

// Folders that are gone are seldom asked for again, so now and then all is begun anew.
constexpr qint64 kLargestFile = 512 << 20;

// The errors of SQLite that a new file cures: no such table or column, damaged, no database.
bool IsCuredByReplacing(const QSqlError& error) {
    const int code = error.nativeErrorCode().toInt() & 0xFF;
    return code == 1 || code == 11 || code == 26;
}

QString UniqueName() {
    static QAtomicInt counter;
    return QStringLiteral("docmodel.references.%1").arg(counter.fetchAndAddRelaxed(1));
}

void RemoveFile(const QString& file) {
    for (const char* ending : {"", "-wal", "-shm", "-journal"})
        QFile::remove(file + QLatin1String(ending));
}

// The paths in the index are nobody else's business.
void MakeFolder(const QString& file) {
    const QString folder = QFileInfo(file).path();
    QDir().mkpath(QFileInfo(folder).path());
    mkdir(QFile::encodeName(folder).constData(), 0700);
}

}  // namespace

IndexSettings& GlobalIndexSettings() {
    static IndexSettings settings = {
        !qEnvironmentVariableIsSet("DOCBENCH_NO_INDEX"),
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
            QStringLiteral("/tessaforma-docbench/references.sqlite"),
        std::nullopt};
    return settings;
}

// An open database with its prepared statements.
struct ReferenceIndex::Connection {
    explicit Connection(Facts facts) : name(UniqueName()), statements(kStatements[int(facts)]) {}
    ~Connection() {
        load.reset();
        store.reset();
        database = QSqlDatabase();
        QSqlDatabase::removeDatabase(name);
    }

    // The error; an invalid one if there is none.
    QSqlError Open(const QString& file);
    QSqlError Prepare(std::optional<QSqlQuery>& query, const char* statement);

    const QString name;
    const Statements& statements;
    QSqlDatabase database;
    std::optional<QSqlQuery> load;
    std::optional<QSqlQuery> store;
};

QSqlError ReferenceIndex::Connection::Prepare(std::optional<QSqlQuery>& query,
                                              const char* statement) {
    query.emplace(database);
    query->setForwardOnly(true);
    return query->prepare(QLatin1String(statement)) ? QSqlError() : query->lastError();
}

QSqlError ReferenceIndex::Connection::Open(const QString& file) {
    database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    database.setConnectOptions(QLatin1String(kOptions));
    database.setDatabaseName(file);
    if (!database.open())
        return database.lastError();
    for (const char* pragma : kPragmas)  // without them it only takes longer
        QSqlQuery(database).exec(QLatin1String(pragma));
    if (QSqlError error = Prepare(load, statements.load); error.isValid()) {
        QSqlQuery create(database);
        if (!create.exec(QLatin1String(kCreate)))
            return create.lastError();
        error = Prepare(load, statements.load);
        if (error.isValid())
            return error;
    }
    return Prepare(store, statements.store);
}

ReferenceIndex::ReferenceIndex(Facts facts) : facts_(facts) {
    const IndexSettings& settings = GlobalIndexSettings();
    if (!settings.isOn)
        return;
    MakeFolder(settings.file);
    if (QFileInfo(settings.file).size() > kLargestFile)
        Replace();
    else
        Open();
}

ReferenceIndex::~ReferenceIndex() = default;

std::optional<qint64> ReferenceIndex::GrainFor(int folder) const {
    if (!IsUsable())
        return std::nullopt;
    const std::optional<qint64>& given = GlobalIndexSettings().grain;
    return given ? given : ClockGrain(folder);
}

void ReferenceIndex::Open() {
    connection_ = std::make_unique<Connection>(facts_);
    const QSqlError error = connection_->Open(GlobalIndexSettings().file);
    if (!error.isValid())
        return;
    qCDebug(indexLog).noquote() << "The index can't be opened:" << error.text();
    connection_.reset();
    if (IsCuredByReplacing(error))
        Replace();
}

void ReferenceIndex::Replace() {
    connection_.reset();
    if (isReplaced_)
        return;
    isReplaced_ = true;
    RemoveFile(GlobalIndexSettings().file);
    Open();
}

QByteArray ReferenceIndex::Load(const QByteArray& folder) {
    if (!connection_)
        return {};
    QSqlQuery& query = *connection_->load;
    query.bindValue(0, folder);
    const bool isKnown = query.exec() && query.next();
    const QSqlError error = query.lastError();
    const QByteArray documents = isKnown ? query.value(0).toByteArray() : QByteArray();
    query.finish();
    if (isKnown || !error.isValid())
        return documents;
    qCDebug(indexLog).noquote() << "The index can't be read:" << error.text();
    if (IsCuredByReplacing(error))
        Replace();
    else
        connection_.reset();
    return {};
}

void ReferenceIndex::Store(const QByteArray& folder, const QByteArray& documents) {
    if (!connection_ || !canStore_)
        return;
    QSqlQuery& query = *connection_->store;
    query.bindValue(0, folder);
    query.bindValue(1, documents);
    if (query.exec())
        return;
    const QSqlError error = query.lastError();
    qCDebug(indexLog).noquote() << "The index can't be written:" << error.text();
    // To try again for each folder would mean to wait for each folder.
    canStore_ = false;
    if (IsCuredByReplacing(error)) {
        Replace();
        canStore_ = true;
    }
}

}  // namespace docmodel
