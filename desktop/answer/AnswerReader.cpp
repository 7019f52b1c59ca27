#include "desktop/answer/AnswerReader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace lithmark {

namespace {

void ReadResults(const QJsonObject& results, CommandOutput& output) {
    for (auto it = results.begin(); it != results.end(); ++it) {
        const std::string name = it.key().toStdString();
        if (it->isDouble()) output.Numbers[name] = it->toDouble();
        if (!it->isArray()) continue;
        std::vector<double>& list = output.Lists[name];
        for (const auto& value : it->toArray()) list.push_back(value.toDouble());
    }
}

// Columns with a symbol, and their numbers; what a row has no number for counts as 0.
AnswerTable ReadTable(const QJsonObject& json) {
    AnswerTable table;
    const QJsonArray columns = json[QStringLiteral("columns")].toArray(), rows = json[QStringLiteral("rows")].toArray();
    for (qsizetype i = 0; i < columns.size(); ++i) {
        std::vector<double>& values = table[columns[i].toObject()[QStringLiteral("symbol")].toString().toStdString()];
        values.clear();
        for (const auto& row : rows) values.push_back(row.toArray()[i].toDouble());
    }
    return table;
}

std::string TextOf(const QJsonValue& value, const char* key) {
    return value.toObject()[QLatin1String(key)].toString().toStdString();
}

void ReadReport(const QJsonObject& json, CommandOutput& output) {
    output.Aborted = json[QStringLiteral("aborted")].toBool();
    for (const auto& message : json[QStringLiteral("messages")].toArray())
        output.Messages.push_back(TextOf(message, "text"));
    for (const auto& notice : json[QStringLiteral("notices")].toArray())
        output.Notices.push_back({TextOf(notice, "id"), TextOf(notice, "text")});
    ReadResults(json[QStringLiteral("results")].toObject(), output);
    for (const auto& table : json[QStringLiteral("tables")].toArray())
        output.Tables.push_back(ReadTable(table.toObject()));
}

}  // namespace

CommandOutput ReadCommandOutput(const QByteArray& json) {
    CommandOutput output;
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (document.isObject()) ReadReport(document.object(), output);
    for (const auto& row : document.array()) {
        auto& values = output.Rows.emplace_back();
        const QJsonObject object = row.toObject();
        for (auto it = object.begin(); it != object.end(); ++it)
            if (it->isDouble()) values[it.key().toStdString()] = it->toDouble();
    }
    return output;
}

}  // namespace lithmark
