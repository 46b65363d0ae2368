#include "identify/StateFile.h"

#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;

namespace {

constexpr std::size_t readLimit = 4 << 20; // veldmarkctl's

// As many as a user may have, with the longest names.
void addAll(std::vector<Identity> &identities, uid_t user)
{
    for (std::size_t n = 0; n < GroupRegister::identitiesPerUser; ++n) {
        const std::string number = std::to_string(n);
        identities.push_back({user, number + std::string(1000 - number.size(), 'x'), 0x7f410001});
    }
}

} // namespace

class StateFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsEachIdentity()
    {
        QCOMPARE(StateFile::text(7, true, {{1000, "web", 0x7f410001}, {1001, "mail", 0x7f410002}}),
                 std::string("identities 7\nstanding\n1000 127.65.0.1 web\n1001 127.65.0.2 mail\n"
                             "end 7\n"));
        QCOMPARE(StateFile::text(8, false, {}), std::string("identities 8\nlost\nend 8\n"));
    }

    void whatManyUsersMakeLeavesTheOthersTheirs_data()
    {
        QTest::addColumn<int>("users");
        QTest::newRow("one") << 1;
        QTest::newRow("five") << 5;
        QTest::newRow("fifty") << 50;
    }

    void whatManyUsersMakeLeavesTheOthersTheirs()
    {
        QFETCH(const int, users);
        std::vector<Identity> identities = {{999, "web", 0x7f420001}};
        for (int user = 0; user < users; ++user)
            addAll(identities, 1000 + static_cast<uid_t>(user));
        identities.push_back({9999, "mail", 0x7f420002});
        const std::string text = StateFile::text(1, true, identities);
        QVERIFY(text.size() < readLimit);
        QVERIFY(text.size() < StateFile::shareLimit * static_cast<std::size_t>(users) + 100);
        QVERIFY(text.find("\n999 127.66.0.1 web\n") != std::string::npos);
        QVERIFY(text.find("\n1000 127.65.0.1 0x") != std::string::npos);
        QVERIFY(text.find("\n9999 127.66.0.2 mail\nend 1\n") != std::string::npos);
    }
};

VELDMARK_TEST(StateFileTest)
#include "StateFileTest.moc"
