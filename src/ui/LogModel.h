#pragma once

#include "log/TorLogFilter.h"
#include "platform/PlatformProfile.h"
#include "ui/LogFeed.h"

#include <QAbstractListModel>
#include <QQmlEngine>

namespace veldmark {

// The log window: the lines that pass its filter, one a row, and the text shown when there are
// none. New rows are inserted at the end and old ones removed at the beginning, so that the reader
// keeps the position.
class LogModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY changed)
    Q_PROPERTY(bool problemsOnly READ problemsOnly WRITE setProblemsOnly NOTIFY changed)
    Q_PROPERTY(QString problemsLabel READ problemsLabel NOTIFY changed)
    Q_PROPERTY(bool hasRows READ hasRows NOTIFY changed)
    Q_PROPERTY(QString emptySymbol READ emptySymbol NOTIFY changed)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)
    Q_PROPERTY(QString showHelp READ showHelp CONSTANT)
    Q_PROPERTY(QString revealProblem READ revealProblem NOTIFY changed)

public:
    enum Role { TimeRole = Qt::UserRole + 1, MessageRole, LevelRole };
    enum class Level { Error, Warning, Notice, Info }; // TorLogLine::Level, for QML
    Q_ENUM(Level)

    // Both must outlive the model.
    LogModel(LogFeed &feed, const PlatformProfile &profile, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString subtitle() const;
    QString search() const { return m_filter.search; }
    void setSearch(const QString &text);
    bool problemsOnly() const { return m_filter.problemsOnly; }
    void setProblemsOnly(bool on);
    QString problemsLabel() const;
    bool hasRows() const { return !m_shown.isEmpty(); }
    QString emptySymbol() const;
    QString emptyTitle() const;
    QString emptyText() const;
    QString showHelp() const;

    // Opens a new window without a filter. The files are followed until it closes.
    Q_INVOKABLE void open();
    Q_INVOKABLE void close() { m_feed.stop(); }
    // Copies the raw lines of the rows `first` to `last` to the clipboard; all rows by default.
    Q_INVOKABLE void copy(int first = 0, int last = -1) const;
    Q_INVOKABLE void copyText(const QString &text) const; // a part of a line
    // Shows the log files in the file manager; `revealProblem` says why that failed.
    Q_INVOKABLE void reveal();
    QString revealProblem() const { return m_revealProblem; }

Q_SIGNALS:
    void changed();

private:
    void update();
    std::optional<TorLogFilter::Placeholder> placeholder() const;
    void openFolder();
    void setRevealProblem(const QString &problem);
    QString noticesPath() const { return m_profile.runDirectory + QStringLiteral("/notices.log"); }

    LogFeed &m_feed;
    const PlatformProfile &m_profile;
    TorLogFilter m_filter;
    int m_problems = 0;
    QList<TorLogLine> m_shown;
    QString m_revealProblem;
};

} // namespace veldmark
