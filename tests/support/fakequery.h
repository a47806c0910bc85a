// A document library whose property queries take down what they are told and answer what a test
// says.
#pragma once

#include <QSet>
#include <functional>
#include <vector>

#include "services/docaccess.h"
#include "services/seams.h"

namespace docbench {

// What the queries of a test were told, and what they answer.
struct FakeAnswers {
    struct Condition {
        QString connective;
        QString property;
        int code;
        QVariant value;
    };
    std::vector<Condition> conditions;  // of the last query
    QueryWords words;
    QStringList evaluated;
    QStringList fileNames;  // as they were set, one by one
    QStringList announced;
    QSet<QString> unread;
    QSet<QString> refused;  // properties that no condition can be on
    std::function<bool(const QString& path)> matches = [](const QString&) { return true; };
};

class FakeQuery : public PropertyQuery {
public:
    explicit FakeQuery(FakeAnswers& answers) : answers_(answers) {}

    void AddCondition(const QString& connective, const QString& property, int code,
                      const QVariant& value) override {
        if (answers_.refused.contains(property))
            throw DocumentError("no condition on " + property);
        answers_.conditions.push_back({connective, property, code, value});
    }
    void SetFileName(const QString& name) override { answers_.fileNames.append(name); }
    bool Evaluate(const QString& path) override {
        answers_.evaluated.append(path);
        ++counts_.documents;
        if (answers_.unread.contains(path)) {
            ++counts_.unread;
            return false;
        }
        return answers_.matches(path);
    }
    void ReadAhead(const QString& folder, const QStringList& names) override {
        for (const QString& name : names)
            answers_.announced.append(folder + u'/' + name);
    }
    SearchCounts GetSearchCounts() override { return counts_; }

private:
    FakeAnswers& answers_;
    SearchCounts counts_;
};

// The program's document library for as long as it lives: the real one but for property queries.
class FakeQueryAccess : public DocumentAccess {
public:
    FakeQueryAccess() : real_(gSeams.documents) { gSeams.documents = this; }
    ~FakeQueryAccess() override { gSeams.documents = real_; }

    std::unique_ptr<DocumentFile> MakeDocumentFile() override { return real_->MakeDocumentFile(); }
    std::unique_ptr<DocumentInfo> MakeDocumentInfo() override { return real_->MakeDocumentInfo(); }
    std::unique_ptr<FolderSearcher> MakeFolderSearcher() override {
        return real_->MakeFolderSearcher();
    }
    std::unique_ptr<PropertyQuery> MakePropertyQuery(const QueryWords& words) override {
        answers.conditions.clear();
        answers.words = words;
        return std::make_unique<FakeQuery>(answers);
    }
    std::unique_ptr<PreviewExtractor> MakePreviewExtractor() override {
        return real_->MakePreviewExtractor();
    }
    std::unique_ptr<LanguageSettings> MakeLanguageSettings() override {
        return real_->MakeLanguageSettings();
    }

    FakeAnswers answers;

private:
    DocumentAccess* real_;
};

}  // namespace docbench
