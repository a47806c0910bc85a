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
    void ClearInput();  // the fields for one property
    void FitColumns();
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
    void Add();
    void Remove();

    std::unique_ptr<Ui::PropertySetBox> ui_;
};

}  // namespace docbench
