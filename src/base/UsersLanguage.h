#pragma once

#include <QTranslator>

namespace veldmark {

// As long as it lives the program speaks the user's language, where there is a translation, and else English. Made behind the
// application object and before anything is said; the program has the translations from veldmark_translated() in its CMake.
class UsersLanguage {
public:
    UsersLanguage();

private:
    QTranslator m_translator;
};

} // namespace veldmark
