#include "controller/PublishedState.h"

#include "base/OneLine.h"
#include "controller/SettingRules.h"
#include "controller/TorController.h"

#include <QJsonArray>

namespace veldmark {

namespace {

const QString titleKey = QStringLiteral("title");

// Like setSetting(), for a setting of type T.
template <typename T>
std::optional<Result<void, SettingError>> trySetting(TorController &controller, Field *field,
                                                     const QString &text)
{
    auto *const setting = dynamic_cast<Setting<T> *>(field);
    if (!setting)
        return std::nullopt;
    T value{};
    if (const auto parsed = parse(text, value); !parsed)
        return Failure(SettingError(SettingError::Kind::Refused, parsed.error()));
    return SettingRules::change(controller, *setting, value);
}

// The texts of a list, or the results of its steps.
QJsonArray translated(QJsonArray list, const QJsonArray &texts)
{
    for (qsizetype at = 0; at < list.size() && at < texts.size(); ++at) {
        const QString text = Text::fromJson(texts[at]).translated();
        if (!list[at].isObject()) {
            list[at] = text;
            continue;
        }
        QJsonObject step = list[at].toObject();
        step.insert(QStringLiteral("result"), text);
        list[at] = step;
    }
    return list;
}

} // namespace

QJsonObject publishedState(const TorController &controller)
{
    QJsonObject state;
    for (const Field *field : controller.fields())
        state.insert(field->name(), field->toJsonIn(controller.phase()));
    // After a failed bootstrap the reason belongs to the banner, and goes with it.
    if (controller.phase() != ConnectionPhase::connecting)
        state.insert(controller.bootstrapProblem.name(), json(controller.problemBehindError()));
    const Verdict verdict = controller.verdict();
    // A known danger replaces the progress line.
    state.insert(controller.statusDetail.name(), json(verdict.detail));
    state.insert(titleKey, json(verdict.title));
    state.insert(QStringLiteral("menuBarSymbol"), verdict.symbol);
    state.insert(QStringLiteral("level"), verdict.levelName());
    // The rules are not watched while the helper takes them down.
    const auto rules = controller.phase() == ConnectionPhase::disconnecting
        ? std::nullopt
        : controller.killSwitch();
    state.insert(controller.killSwitch.name(), json(rules));
    state.insert(QStringLiteral("killSwitchSince"),
                 rules ? json(rules->since.toString(Qt::ISODate)) : QJsonValue(QJsonValue::Null));
    QJsonArray changes;
    for (const auto &change : controller.phaseChanges())
        changes.append(QJsonObject{{controller.phase.name(), json(change.phase)},
                                   {QStringLiteral("at"), change.at.toString(Qt::ISODateWithMs)}});
    state.insert(QStringLiteral("phaseChanges"), changes);
    return state;
}

QJsonObject publishedTexts(const TorController &controller)
{
    QJsonObject texts;
    for (const Field *field : controller.fields()) {
        if (const QJsonValue text = field->textToJson(); !text.isNull())
            texts.insert(field->name(), text);
    }
    const Verdict verdict = controller.verdict();
    texts.insert(controller.statusDetail.name(), verdict.detail.toJson());
    texts.insert(titleKey, verdict.title.toJson());
    return texts;
}

QJsonObject inUsersLanguage(QJsonObject state, const QJsonObject &texts)
{
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        const QJsonValue english = state.value(text.key()); // what the state leaves out stays out
        if (english.isString()) {
            state.insert(text.key(), Text::fromJson(text.value()).translated());
        } else if (english.isArray()) {
            state.insert(text.key(), translated(english.toArray(), text.value().toArray()));
        }
    }
    return state;
}

QStringList settingNames(const TorController &controller)
{
    QStringList names;
    for (const Field *field : controller.fields()) {
        if (field->setting())
            names << field->name();
    }
    return names;
}

Result<void, SettingError> setSetting(TorController &controller, const QString &name,
                                      const QString &text)
{
    Field *const field = controller.fieldNamed(name);
    for (const auto &tried :
         {trySetting<bool>(controller, field, text), trySetting<QString>(controller, field, text),
          trySetting<QStringList>(controller, field, text),
          trySetting<BridgeChoice>(controller, field, text),
          trySetting<Climb>(controller, field, text)}) {
        if (tried)
            return *tried;
    }
    return Failure(SettingError(
        SettingError::Kind::Refused,
        Text::tr("There is no setting \"%1\". Settings: %2.")
            .arg(inOneLine(name), settingNames(controller).join(QStringLiteral(", ")))));
}

} // namespace veldmark
