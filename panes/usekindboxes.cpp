#include "panes/usekindboxes.h"

#include <QCheckBox>

#include "services/language.h"
#include "services/texts.h"

namespace docbench {

UseKindBoxes::UseKindBoxes(QCheckBox* wuFindRef, QCheckBox* wuFindInCtx, QCheckBox* wifindMirrored,
                           QObject* form)
    : QObject(form),
      wuFindRef_(wuFindRef),
      wuFindInCtx_(wuFindInCtx),
      wifindMirrored_(wifindMirrored) {
    wuFindRef_->setText(Tr(Text::FindReferences));
    wuFindInCtx_->setText(Tr(Text::FindInContext));
    wifindMirrored_->setText(Tr(Text::FindMirrored));
    SetKinds({});
    KeepOne(wuFindRef_, wifindMirrored_);
    KeepOne(wuFindInCtx_, wuFindRef_);
    KeepOne(wifindMirrored_, wuFindInCtx_);
}

UseKinds UseKindBoxes::Kinds() const {
    return {.references = wuFindRef_->isChecked(),
            .inContext = wuFindInCtx_->isChecked(),
            .mirrored = wifindMirrored_->isChecked()};
}

void UseKindBoxes::SetKinds(const UseKinds& kinds) {
    // Ticks come first: for a moment without any, one would tick itself.
    for (const bool ticks : {true, false}) {
        if (kinds.references == ticks)
            wuFindRef_->setChecked(ticks);
        if (kinds.inContext == ticks)
            wuFindInCtx_->setChecked(ticks);
        if (kinds.mirrored == ticks)
            wifindMirrored_->setChecked(ticks);
    }
}

void UseKindBoxes::KeepOne(QCheckBox* cleared, QCheckBox* other) {
    connect(cleared, &QCheckBox::toggled, this, [this, other](bool ticked) {
        if (!ticked && AllClear())
            other->setChecked(true);
    });
}

bool UseKindBoxes::AllClear() const {
    return !wuFindRef_->isChecked() && !wuFindInCtx_->isChecked() && !wifindMirrored_->isChecked();
}

}  // namespace docbench
