// Things outside the process that are known by a program id; absent is normal.
#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>
#include <memory>

namespace docbench {

// A program under its program id, driven by method and property names.
class OutsideObject {
public:
    virtual ~OutsideObject() = default;
    // False when the program has gone, knows no such method, or failed.
    virtual bool Call(const QString& method, const QVariantList& arguments) = 0;
    virtual bool SetProperty(const QString& name, const QVariant& value) = 0;
};

class OutsideObjects {
public:
    virtual ~OutsideObjects() = default;
    // The running program registered under the id, or null. Never starts one.
    virtual std::unique_ptr<OutsideObject> Attach(const QString& programId) = 0;
    // The same, starting the program if it does not run and the desktop knows how to.
    virtual std::unique_ptr<OutsideObject> Start(const QString& programId) = 0;
    // A new object of the component (a plug-in) known under the id, driven by the names of its
    // properties and invokable methods; null when there is none or it can't be made.
    virtual std::unique_ptr<QObject> Create(const QString& programId) = 0;
};

}  // namespace docbench
