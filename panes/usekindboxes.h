// The three check boxes of the kinds of use, of which one always stays ticked.
#pragma once

#include <QObject>

#include "panes/usekinds.h"

class QCheckBox;

namespace docbench {

class UseKindBoxes : public QObject {
    Q_OBJECT

public:
    // The boxes belong to the form, which owns this object.
    UseKindBoxes(QCheckBox* wuFindRef, QCheckBox* wuFindInCtx, QCheckBox* wifindMirrored,
                 QObject* form);

    UseKinds Kinds() const;
    void SetKinds(const UseKinds& kinds);

private:
    // Clearing the last ticked box ticks `other`.
    void KeepOne(QCheckBox* cleared, QCheckBox* other);
    bool AllClear() const;

    QCheckBox* wuFindRef_;
    QCheckBox* wuFindInCtx_;
    QCheckBox* wifindMirrored_;
};

}  // namespace docbench
