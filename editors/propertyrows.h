// The list of a property set in the property pane: one row a property, whose cells are what is
// written.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include "cells/celllist.h"

namespace docbench {

class DocumentInfo;

// Columns from 0. While a row is as it was read, the tag of its value holds the stored value, so
// that what was not edited is given back to the bit.
enum PropertyColumn { kPropertyName = 0, kPropertyValue = 1, kPropertyType = 2 };

// The types of a property as documents store them and as the list of types has them.
enum PropertyType { kTextProperty = 0, kDateProperty = 1, kNumberProperty = 2, kYesNoProperty = 3 };

void PreparePropertyList(CellList& list);  // its headers

// In the order of PropertyType.
QStringList PropertyTypeLabels();
PropertyType TypeOfLabel(const QString& label);  // text for one that is no type's

// Replaces the rows by the properties of a set; those without a name or a value are left out.
void LoadPropertyRows(CellList& list, DocumentInfo& set);

// Of all properties, in their order.
QStringList PropertyNames(DocumentInfo& set);

// Whether several of the names answer to `name` equally well, as only documents of others have
// them: an exact one goes before one in another case of letters.
bool IsAmbiguous(const QStringList& names, const QString& name);

// The row of a name, which is the same in any case of letters, or -1. An exact one goes first.
int FindProperty(const CellList& list, const QString& name);

// Whether a text can be stored as a value of the type.
bool FitsType(const QString& text, PropertyType type);

// Sets a row's value and type, or adds a row (row -1). What stays the same is no edit.
void PutProperty(CellList& list, int row, const QString& name, const QString& value,
                 PropertyType type);

// What a row says, in its type; invalid when the text does not fit it.
QVariant PropertyValueOf(const CellRow& row);

// Deletes the names from a set and writes every row, in this order. A property that can't be
// written is passed over. Nothing is on the disk before the set is saved.
void WriteProperties(const CellList& list, DocumentInfo& set, const QStringList& deletedNames);

}  // namespace docbench
