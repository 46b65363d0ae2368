#include "ui/ReportModel.h"

#include <QClipboard>
#include <QGuiApplication>

namespace veldmark {

ReportModel::ReportModel(Session &session, QObject *parent) : QObject(parent), m_session(session)
{
    QObject::connect(&session, &Session::changed, this, &ReportModel::changed);
}

QString ReportModel::note() const
{
    const auto &saved = m_session.now().reportSaved;
    return saved ? tr("Saved in %1").arg(*saved) : QString();
}

QString ReportModel::problem() const
{
    return m_session.now().reportProblem.value_or(Text()).translated();
}

void ReportModel::copy() const
{
    QGuiApplication::clipboard()->setText(text());
}

} // namespace veldmark
