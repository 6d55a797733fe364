#include <QString>

int main(int argc, char**) { return QString::number(argc).isEmpty(); }
