#include "app/exitcodes.h"
#include "docmodel/builder.h"
#include "docmodel/tool/command.h"
#include "docmodel/tool/summaryfields.h"

namespace docmodel::tool {

int RunNew(const QStringList& arguments) {
    Arguments given(QStringLiteral("new"), QStringLiteral("Makes an empty document."),
                    {{QStringLiteral("FILE"),
                      QStringLiteral("Parts end in .tfmprt, assemblies in .tfmasm, drawings in "
                                     ".tfmdrw.")}});
    for (const SummaryFieldOption& field : kSummaryFieldOptions)
        given.Parser().addOption({QLatin1String(field.name),
                                  QStringLiteral("The %1.").arg(QLatin1String(field.name)),
                                  QStringLiteral("TEXT")});
    given.Parser().addOptions(
        {{QStringLiteral("replace"), QStringLiteral("Writes over a document of that name.")},
         {QStringLiteral("payload"),
          QStringLiteral("How many bytes stand for a model; none by default."),
          QStringLiteral("BYTES"), QStringLiteral("0")}});
    if (!given.Read(arguments))
        return docbench::kExitDone;

    constexpr qint64 kMaxPayload = qint64(1) << 30;
    const qint64 payload = given.Number(QStringLiteral("payload"), 0, kMaxPayload);
    DocumentBuilder document = DocumentBuilder::New(
        given.At(0), given.IsSet(QStringLiteral("replace")) ? DocumentBuilder::IfThere::Replace
                                                            : DocumentBuilder::IfThere::Refuse);
    for (const SummaryFieldOption& field : kSummaryFieldOptions)
        if (given.IsSet(QLatin1String(field.name)))
            (document.*field.set)(given.Value(QLatin1String(field.name)));
    if (payload > 0)
        document.SetModel(payload, 0);
    document.Save();
    return docbench::kExitDone;
}

}  // namespace docmodel::tool
