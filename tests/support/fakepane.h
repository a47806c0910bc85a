// A pane that writes down what it is called with.
#pragma once

#include <QStringList>

#include "shell/pane.h"

namespace docbench {

class FakePane : public Pane {
    Q_OBJECT

public:
    using Pane::Pane;

    void SetShowDesc(bool show) override {
        calls.append(QStringLiteral("ShowDesc %1 visible %2").arg(show).arg(!isHidden()));
    }
    void SetDocument(const PaneDocument& document) override {
        documents.append(document);
        calls.append(QStringLiteral("SetDocument ") + document.path);
    }
    void Enable(bool enabled) override { calls.append(QStringLiteral("Enable %1").arg(enabled)); }
    void ReloadProperties(const QString& path) override {
        calls.append(QStringLiteral("ReloadProperties ") + path);
    }
    void ReleaseAll() override {
        if (released)
            released->append(objectName());
    }

    void SetStatusBarControl(QObject* statusBarControl) override {
        Pane::SetStatusBarControl(statusBarControl);
        if (givenStatus)
            givenStatus->append(objectName());
    }

    QStringList calls;
    QList<PaneDocument> documents;
    QStringList* released = nullptr;     // is told the pane's name at each ReleaseAll
    QStringList* givenStatus = nullptr;  // and at each status line
};

// A status line that keeps what is written to it.
class FakeStatusLine : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString Caption MEMBER caption)

public:
    QString caption;
};

}  // namespace docbench
