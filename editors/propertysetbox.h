// The controls that edit one set of custom properties: its list, and the fields for one property.
#pragma once

#include <QStringList>
#include <QWidget>
#include <memory>

#include "editors/propertyrows.h"

namespace Ui {
class PropertySetBox;
}

namespace docbench {

class PropertySetBox : public QWidget {
    Q_OBJECT

public:
    explicit PropertySetBox(QWidget* parent = nullptr);
    ~PropertySetBox() override;

    // Gives the controls the names that they have as members of control arrays, such as "lv1(2)".
    void SetIndex(int index);
    CellList& List();
    // Lists the properties of a set; `document` names it in error texts.
    void Load(DocumentInfo& set, const QString& document);
    // Takes over which names the set has, by which an edit is allowed. To be called after a save.
    void TakeNames(DocumentInfo& saved);
    void ClearInput();  // the fields for one property
    void FocusName();

Q_SIGNALS:
    void Edited();                      // the list has been changed by the user
    void Removed(const QString& name);  // a row went away; comes before Edited

private:
    void SetCaptions();
    void ConnectControls();
    void OnNameChanged();
    void OnNamePicked();
    void OnTypePicked();
    void UpdateAdd();
    void ShowRow(int row);
    void ShowValueOf(PropertyType type);
    bool HasValue() const;
    PropertyType Type() const;
    bool CanEdit(const QString& name) const;
    void Add();
    void Remove();

    std::unique_ptr<Ui::PropertySetBox> ui_;
    QString document_;
    QStringList stored_;  // the names in the document, those that are not listed among them
};

}  // namespace docbench
