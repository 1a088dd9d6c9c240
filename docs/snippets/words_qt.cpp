// The same program with Qt 6. The tests do not build it.

//! [program]
#include <QFile>
#include <QMap>
#include <QStringList>
#include <QTextStream>

using namespace Qt::StringLiterals;

int main(int, char** arguments) {
  QFile file(arguments[1]);
  if (!file.open(QIODevice::ReadOnly))
    return 1;
  QString text = QString::fromUtf8(file.readAll()).toLower();
  text.replace(u'\u2019', u'\'');
  text.replace(u'\n', u' ');

  QMap<qsizetype, QStringList> sizes;
  for (const QString& word :
       text.split(u' ', Qt::SkipEmptyParts))
    sizes[word.toUcs4().size()].append(word);
  QTextStream out(stdout);
  for (auto i = sizes.begin(); i != sizes.end(); ++i) {
    i.value().sort();
    i.value().removeDuplicates();
    out << i.key() << ": " << i.value().join(u", "_s)
        << '\n';
  }
}
//! [program]
