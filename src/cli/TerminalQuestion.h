#pragma once

#include "system/PrivilegedRunner.h"

#include <QObject>

#include <memory>

namespace veldmark {

// Asks for an approval on the terminal of this process, wherever its input and output go: a program
// behind a pipe cannot answer. Only the word "yes", typed after the question was shown, approves.
// One question at a time. Main thread.
class TerminalQuestion : public QObject {
    Q_OBJECT

public:
    // terminal: the path of a terminal.
    explicit TerminalQuestion(QString terminal = QStringLiteral("/dev/tty"));
    ~TerminalQuestion() override; // refuses an open question

    // nobodyThere: this process has no terminal, or runs in the background of one.
    QCoro::Task<PrivilegedRunner::Answer> ask(Text text);
    // Refuses the question that is open, if there is one.
    void refuse();

private:
    struct OpenQuestion;

    const QString m_terminal;
    std::shared_ptr<OpenQuestion> m_asking;
};

} // namespace veldmark
