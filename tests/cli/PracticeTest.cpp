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
    vorel.write("caf\xC3\xA9\n/Bob psst\n");
    QByteArray heard;
    const auto hearsIt = [&] { return (heard += bob.readAll()).contains("([ Ann|Cat whispers, \"psst\" to you. ]\n"); };
    EXPECT_TRUE(Eventually(hearsIt)) << heard.toStdString();
    EXPECT_TRUE(heard.contains("(Ann|Cat: caf\xE9\n"));
    vorel.Signal(SIGTERM);
    EXPECT_EQ(vorel.Ends(), 0);
}

}  // namespace
