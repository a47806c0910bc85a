// A spreadsheet program that keeps what it was to show.
#pragma once

#include <functional>

#include "services/docaccess.h"
#include "services/seams.h"
#include "services/spreadsheet.h"

namespace docbench {

class FakeSpreadsheet : public Spreadsheet {
public:
    FakeSpreadsheet() { gSeams.spreadsheet = this; }
    ~FakeSpreadsheet() override { gSeams.spreadsheet = nullptr; }
    QString Show(const TextTable& table) override {
        if (meanwhile)
            meanwhile();
        if (fails)
            throw DocumentError("no room");
        shown = table;
        return "/docs/list.xlsx";
    }

    TextTable shown;
    bool fails = false;
    std::function<void()> meanwhile;
};

}  // namespace docbench
