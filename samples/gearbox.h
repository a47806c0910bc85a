// The sample library as a table: a gearbox of three levels, and beside it assemblies with faults.
#pragma once

#include <QList>
#include <QString>

#include "samples/pictures.h"

namespace samples {

struct Component {
    QString path;
    int count = 1;
};

struct External {
    QString path;
    QString kind;
};

struct Configuration {
    QString name;
    double length = 0;  // millimetres
    double mass = 0;    // kilograms
    QString material;
};

// All paths are below the library's folder.
struct Document {
    QString path;
    QString title;
    Picture picture = Picture::LooseParts;
    double mass = 0;     // kilograms
    QString material{};  // of parts
    QList<Component> components{};
    QList<External> externals{};
    QList<Configuration> configurations{};
    QStringList hyperlinks{};
    QString lockedBy{};
    bool referencesLocked = false;
};

inline constexpr char kMainAssembly[] = "gearbox.tfmasm";

QList<Document> Gearbox();
QList<Document> GearboxAssemblies();
QList<Document> GearboxParts();
QList<Document> GearboxDrawings();
// An assembly with a missing reference and two that hold each other.
QList<Document> FaultyAssemblies();

}  // namespace samples
