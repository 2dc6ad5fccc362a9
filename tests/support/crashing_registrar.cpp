// In place of the system's regsvr32.exe: ends as a program does that met an access violation.
int main() {
  return -1073741819;
}
