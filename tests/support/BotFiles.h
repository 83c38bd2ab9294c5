#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

inline constexpr char kPassword[] = "s3cr3t-w0rd";

/// A whole script around its triggers.
inline QByteArray ScriptText(const QByteArray& triggers) {
    return "VSPK 01.00 Vorel\r\n" + triggers + "\r\n*Endtriggers* 9999 *Endtriggers*\r\n";
}

/// A folder with the files of bots, gone at the end of the test.
class BotFiles {
  public:
    QString Path(const QString& name = {}) const { return folder_.filePath(name); }

    QString Write(const QString& name, const QByteArray& bytes) const {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << name.toStdString();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file.fileName();
    }
    QByteArray Read(const QString& name) const {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }
    /// Writes NAME.ini, NAME.vs and NAME.tvm.
    void WriteBot(const QByteArray& name, const QByteArray& triggers = {}, const QByteArray& settings = {}) const {
        Write(name + ".ini",
              "Name=" + name + "\nPassword=" + kPassword + "\nDesc=A bot\nColors=cccccccccc\nSpec=121\n");
        Write(name + ".vs", ScriptText(triggers));
        Write(name + ".tvm",
              "[General]\nFurcadiaCharacter=" + name + ".ini\nOwners=Ann\nScript=" + name + ".vs\n" + settings);
    }

  private:
    QTemporaryDir folder_;
};
