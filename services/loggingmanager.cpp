#include "services/loggingmanager.h"

#include "services/errorstate.h"
#include "services/outsideobjects.h"
#include "services/seams.h"

namespace docbench {

std::unique_ptr<LoggingManager> gLogger;

namespace {

const char kProgramId[] = "TFDEventLog.LoggingManager";

}  // namespace

LoggingManager::LoggingManager() {
    ErrorState().Run([this] {
        if (gSeams.outside)
            server = gSeams.outside->Start(QLatin1String(kProgramId));
        if (server)
            server->Call(QStringLiteral("Start"), {});  // a log that did not start is still called
    });
}

LoggingManager::~LoggingManager() {
    if (server)
        ErrorState().Run([this] { server->Call(QStringLiteral("Finish"), {}); });
}

void LoggingManager::LogCommand(const QString& inCommand) {
    Forward(QStringLiteral("LogCommand"), {inCommand});
}

void LoggingManager::LogDocumentOpen(const QString& inFilename) {
    Forward(QStringLiteral("LogDocumentOpen"), {inFilename});
}

void LoggingManager::LogPreviewInfo(const QString& inFilename, bool inHasVistaModelViewer,
                                    bool inHasVistaModelData, bool inUse3DView) {
    Forward(QStringLiteral("LogPreviewInfo"),
            {inFilename, inHasVistaModelViewer, inHasVistaModelData, inUse3DView});
}

void LoggingManager::Forward(const QString& method, const QVariantList& arguments) {
    if (server && !server->Call(method, arguments))
        throw DocumentError(QStringLiteral("The performance log did not take %1.").arg(method));
}

void Log(const std::function<void(LoggingManager&)>& report) {
    if (!gLogger)
        gLogger = std::make_unique<LoggingManager>();
    ErrorState().Run([&] { report(*gLogger); });
}

}  // namespace docbench
