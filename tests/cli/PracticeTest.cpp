#include <gmock/gmock.h>

#include "cli/Vorel.h"

namespace {

TEST(Practice, CarriesThePersonsLines) {
    Vorel vorel({}, {"practice", "--port", "0", "--name", "Ann Cat"});
    ASSERT_TRUE(vorel.Shows("closes it.\n"));
    const QByteArray port = vorel.out.mid(vorel.out.indexOf("port ") + 5);
    QTcpSocket bob;
    bob.connectToHost(QHostAddress(QHostAddress::LocalHost), port.left(port.indexOf('.')).toUShort());
    bob.write("connect Bob x\ncolor cccccccccc!!!\n\nvascodagama\n\"anybody here?\n");
    ASSERT_TRUE(vorel.Shows("Bob: anybody here?\n"));
    vorel.write("\n`\ncaf\xC3\xA9\n-hey\n:waves\n`\"emit boo\n/Bob psst\n");
    QByteArray heard;
    const auto hearsIt = [&] { return (heard += bob.readAll()).contains("([ Ann|Cat whispers, \"psst\" to you. ]\n"); };
    EXPECT_TRUE(Eventually(hearsIt)) << heard.toStdString();
    for (const char* line : {"(Ann|Cat: caf\xE9\n", "({S} Ann|Cat shouts: hey\n", "(Ann|Cat waves\n", "([#] boo\n"}) {
        EXPECT_TRUE(heard.contains(line)) << line;
    }
    EXPECT_EQ(heard.count("(Ann|Cat: "), 1) << "empty lines say nothing";
    vorel.Signal(SIGTERM);
    EXPECT_EQ(vorel.Ends(), 0);
}

}  // namespace
