// The performance log: a guard around an outside logging server that may be absent.
#pragma once

#include <QString>
#include <QVariantList>
#include <functional>
#include <memory>

namespace docbench {

class OutsideObject;

// Without a server every call does nothing. A call that the server fails raises.
class LoggingManager {
public:
    LoggingManager();   // makes the server and starts its log; whatever fails is silent
    ~LoggingManager();  // ends the log
    LoggingManager(const LoggingManager&) = delete;
    LoggingManager& operator=(const LoggingManager&) = delete;

    void LogCommand(const QString& inCommand);
    void LogDocumentOpen(const QString& inFilename);
    void LogPreviewInfo(const QString& inFilename, bool inHasVistaModelViewer,
                        bool inHasVistaModelData, bool inUse3DView);

private:
    void Forward(const QString& method, const QVariantList& arguments);

    std::unique_ptr<OutsideObject> server;
};

// One for the process, made by the first report and dropped when the frame stops.
extern std::unique_ptr<LoggingManager> gLogger;

// Makes a report to gLogger. No failure of it gets any further, so that logging can't break a
// command.
void Log(const std::function<void(LoggingManager&)>& report);

}  // namespace docbench
