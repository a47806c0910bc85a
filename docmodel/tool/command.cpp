#include "docmodel/tool/command.h"

#include "docmodel/package.h"

namespace docmodel::tool {

Arguments::Arguments(const QString& command, const QString& description,
                     const QList<Position>& positions)
    : command_(command), positions_(positions) {
    parser_.setApplicationDescription(description);
    for (const Position& position : positions_)
        parser_.addPositionalArgument(position.name, position.description, position.name);
    parser_.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this text.")});
}

bool Arguments::Read(const QStringList& arguments) {
    if (!parser_.parse(QStringList(QStringLiteral("docmodel")) + arguments))
        throw UsageError(parser_.errorText() + u'.');
    if (parser_.isSet(QStringLiteral("help"))) {
        QString help = parser_.helpText();
        const QLatin1String options("[options]");
        help.replace(help.indexOf(options), options.size(), command_ + u' ' + options);
        Out() << help;
        return false;
    }
    const qsizetype given = All().size();
    if (given < positions_.size() && !positions_[given].name.startsWith(u'['))
        throw UsageError(QStringLiteral("The argument %1 is missing.").arg(positions_[given].name));
    if (given > positions_.size() && !positions_.last().name.endsWith(QLatin1String("...")))
        throw UsageError(QStringLiteral("There is one argument too many: \"%1\".")
                             .arg(All().at(positions_.size())));
    return true;
}

qint64 Arguments::Number(const QString& option, qint64 least, qint64 most) const {
    bool isNumber = false;
    const qint64 number = Value(option).toLongLong(&isNumber);
    if (!isNumber || number < least || number > most)
        throw UsageError(QStringLiteral("The option --%1 takes a whole number from %2 to %3, not "
                                        "\"%4\".")
                             .arg(option)
                             .arg(least)
                             .arg(most)
                             .arg(Value(option)));
    return number;
}

const QList<Command>& Commands() {
    static const QList<Command> commands = {
        {"new", "Makes an empty document", RunNew},
        {"show", "Shows what a document says about itself and refers to", RunShow},
        {"set-property", "Sets or deletes a summary field or custom property", RunSetProperty},
        {"add-reference", "Adds a component or an external reference", RunAddReference},
        {"set-preview", "Stores a picture as the preview", RunSetPreview},
        {"add-configuration", "Adds a configuration", RunAddConfiguration},
        {"add-hyperlink", "Adds a hyperlink", RunAddHyperlink},
        {"lock", "Reserves a document, or locks its references", RunLock},
        {"check", "Reads documents whole and tells what is damaged", RunCheck},
        {"compact", "Rewrites documents without the space of former states", RunCompact},
        {"make-library", "Fills a folder with documents for benchmarks", RunMakeLibrary},
    };
    return commands;
}

QTextStream& Out() {
    static QTextStream out(stdout);
    return out;
}

QTextStream& Err() {
    static QTextStream err(stderr);
    return err;
}

void RequireDocument(const QString& path) {
    try {
        Package::Open(path);
    } catch (const DocumentError& error) {
        throw OpenError(error.Description());
    }
}

}  // namespace docmodel::tool
