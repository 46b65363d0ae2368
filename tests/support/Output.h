#pragma once

#include <QFile>
#include <QTemporaryFile>

#include <cstdio>

#include <unistd.h>

namespace veldmark {

// Captures the program's standard output, or standard error, during its lifetime.
class Output {
public:
    explicit Output(FILE *stream = stdout) : m_stream(stream), m_before(::dup(fileno(stream)))
    {
        std::fflush(m_stream);
        if (m_before < 0 || !m_file.open() || ::dup2(m_file.handle(), fileno(m_stream)) < 0)
            qFatal("Output: a stream cannot be kept");
    }
    ~Output()
    {
        std::fflush(m_stream);
        ::dup2(m_before, fileno(m_stream));
        ::close(m_before);
    }
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;

    QString text() const
    {
        QFile file(m_file.fileName());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private:
    FILE *m_stream;
    int m_before;
    QTemporaryFile m_file;
};

} // namespace veldmark
