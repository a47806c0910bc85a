// What a plug-in has to offer to be known as a component under a program id.
#pragma once

#include <QObject>
#include <QtPlugin>

namespace docbench {

// The plug-in's metadata names the id: {"programId": "Some.Component"}. The objects that it makes
// are driven by the names of their properties and invokable methods, as the id's users know them.
class ComponentFactory {
public:
    virtual ~ComponentFactory() = default;
    virtual QObject*
    Create() = 0;  // a new object for the caller to own; null when it can't be made
};

}  // namespace docbench

#define DocbenchComponent_iid "com.tessaforma.docbench.Component/1"
Q_DECLARE_INTERFACE(docbench::ComponentFactory, DocbenchComponent_iid)
