#include "ui/DoctorModel.h"

#include "ui/PanelModel.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

namespace veldmark {

namespace {

using Level = Finding::Level;

// Sorts problems first and good findings last, otherwise in the order found.
int rank(Level level)
{
    switch (level) {
    case Level::problem:
        return 0;
    case Level::unknown:
        return 1;
    case Level::note:
        return 2;
    case Level::good:
        break;
    }
    return 3;
}

PanelModel::Tone toneOf(Level level)
{
    switch (level) {
    case Level::problem:
        return PanelModel::Tone::Danger;
    case Level::unknown:
        return PanelModel::Tone::Warning;
    case Level::note:
        return PanelModel::Tone::Info;
    case Level::good:
        break;
    }
    return PanelModel::Tone::Good;
}

QString symbolOf(Level level)
{
    switch (level) {
    case Level::problem:
        return QStringLiteral("xmark.circle.fill");
    case Level::unknown:
        return QStringLiteral("exclamationmark.circle.fill");
    case Level::note:
        return QStringLiteral("info.circle");
    case Level::good:
        break;
    }
    return QStringLiteral("checkmark.circle.fill");
}

} // namespace

DoctorModel::DoctorModel(Session &session, QObject *parent)
    : QAbstractListModel(parent),
      m_session(session)
{
    QObject::connect(&session, &Session::changed, this, &DoctorModel::update);
    update();
}

void DoctorModel::update()
{
    Findings next = m_session.now().findings;
    std::stable_sort(next.begin(), next.end(), [](const Finding &a, const Finding &b) {
        return rank(a.level) < rank(b.level);
    });
    if (next != m_findings) {
        beginResetModel();
        m_findings = std::move(next);
        endResetModel();
    }
    Q_EMIT changed();
}

int DoctorModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_findings.size());
}

QHash<int, QByteArray> DoctorModel::roleNames() const
{
    return {{TextRole, "text"},   {ToneRole, "tone"},       {SymbolRole, "symbol"},
            {LevelRole, "level"}, {CommandRole, "command"}, {ButtonRole, "button"}};
}

QVariant DoctorModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Finding &finding = m_findings[static_cast<std::size_t>(index.row())];
    switch (role) {
    case TextRole:
        return finding.text.translated();
    case ToneRole:
        return static_cast<int>(toneOf(finding.level));
    case SymbolRole:
        return symbolOf(finding.level);
    case LevelRole:
        switch (finding.level) {
        case Level::problem:
            return tr("Problem");
        case Level::unknown:
            return tr("Not known");
        case Level::note:
            return tr("Note");
        case Level::good:
            break;
        }
        return tr("OK");
    case CommandRole: // a button does the same more easily
        return finding.button == Finding::Button::none ? finding.command : QString();
    case ButtonRole:
        switch (finding.button) {
        case Finding::Button::restore:
            return tr("Restore Network");
        case Finding::Button::download:
            return tr("Download");
        case Finding::Button::none:
            break;
        }
        return QString();
    default:
        return {};
    }
}

QString DoctorModel::verdict() const
{
    if (busy())
        return tr("Looking at this computer…");
    if (m_findings.empty())
        return tr("The check gave no result.");
    const auto can = canConnect(m_findings);
    if (!can)
        return Text::tr("It isn't known whether a connect can work.").translated();
    return *can ? tr("No problem was found that keeps Veldmark from connecting.")
                : tr("Veldmark can't connect until each problem is fixed.");
}

void DoctorModel::press(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    switch (m_findings[static_cast<std::size_t>(row)].button) {
    case Finding::Button::restore:
        m_session.disconnectFromTor();
        break;
    case Finding::Button::download:
        m_session.downloadTransports();
        break;
    case Finding::Button::none:
        break;
    }
}

void DoctorModel::copy(const QString &text) const
{
    QGuiApplication::clipboard()->setText(text);
}

} // namespace veldmark
