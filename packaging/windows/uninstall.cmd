@echo off
rem uninstall.cmd [/machine] [/64] [/quiet]: takes away what install.cmd brought, and nothing else.
rem The switches tell which Corvane is meant when this does not lie beside it. Ends with 0, 1 when something stays, 2 for a
rem switch that it does not know.
setlocal
set "TO=%~dp0"
set "MACHINE="
set "NAME=Corvane"
set "QUIET="

:switches
if "%~1"=="" goto place
if /i "%~1"=="/machine" goto machine
if /i "%~1"=="/64" goto wide
if /i "%~1"=="/quiet" goto quiet
echo There is no switch %1. Use uninstall.cmd [/machine] [/64] [/quiet].
exit /b 2
:machine
set "MACHINE=1"
shift
goto switches
:wide
set "NAME=Corvane64"
shift
goto switches
:quiet
set "QUIET=1"
shift
goto switches

:place
if exist "%TO%scope.txt" goto found
if not defined LOCALAPPDATA set "LOCALAPPDATA=%APPDATA%"
set "TO=%LOCALAPPDATA%\%NAME%\"
if not defined MACHINE goto check
set "PROGRAMS=%ProgramFiles(x86)%"
if "%NAME%"=="Corvane64" set "PROGRAMS=%ProgramFiles%"
if not defined PROGRAMS set "PROGRAMS=%ProgramFiles%"
set "TO=%PROGRAMS%\%NAME%\"
:check
if not exist "%TO%scope.txt" goto nothing

:found
cd /d "%SystemRoot%"
set "SCOPE=user"
set /p SCOPE=<"%TO%scope.txt"
set "REGISTRAR=%SystemRoot%\System32\regsvr32.exe"
if exist "%SystemRoot%\SysWOW64\regsvr32.exe" set "REGISTRAR=%SystemRoot%\SysWOW64\regsvr32.exe"
set "WIDE=%SystemRoot%\System32\regsvr32.exe"
if exist "%SystemRoot%\Sysnative\regsvr32.exe" set "WIDE=%SystemRoot%\Sysnative\regsvr32.exe"
if not exist "%TO%corvane.dll" goto remove
rem While Visual Basic uses the library it cannot be written, not even as it is; then nothing changes.
copy /y "%TO%corvane.dll" "%TO%corvane.tmp" >nul 2>nul
copy /y "%TO%corvane.tmp" "%TO%corvane.dll" >nul 2>nul
set "INUSE=%errorlevel%"
del /q "%TO%corvane.tmp" 2>nul
if not "%INUSE%"=="0" goto inuse

set "HOW=/s /u"
if "%SCOPE%"=="machine" set "HOW=/s /u /n /i:machine"
start "" /wait "%REGISTRAR%" %HOW% "%TO%corvane.dll"
if not errorlevel 1 goto remove
rem A library of 64 bit is refused by the 32-bit program.
start "" /wait "%WIDE%" %HOW% "%TO%corvane.dll"
if errorlevel 1 goto notunregistered

:remove
reg delete "HKCU\Software\VB and VBA Program Settings\corvane" /f >nul 2>nul
set "STAYS="
for /f "usebackq delims=" %%F in ("%TO%files.txt") do call :removeone "%%F"
del /q "%TO%scope.txt" 2>nul
del /q "%TO%files.txt" 2>nul
if defined STAYS goto notremoved
echo Corvane is removed. If files of your own are in %TO%, they stay there.
call :stay
rem One line to the end: after the first command this file is gone.
del /q "%TO%uninstall.cmd" & rmdir "%TO%" 2>nul & exit /b 0

:removeone
if "%~1"=="files.txt" exit /b 0
if "%~1"=="uninstall.cmd" exit /b 0
if not exist "%TO%%~1" exit /b 0
del /q "%TO%%~1" 2>nul
if exist "%TO%%~1" set "STAYS=%~1"
exit /b 0

:stay
if not defined QUIET pause
exit /b 0

:nothing
echo Corvane is not installed in %TO%
goto stop
:inuse
echo %TO%corvane.dll is in use or may not be written. Close Visual Basic and run uninstall.cmd again.
goto stop
:notunregistered
echo Corvane could not be unregistered, so its files stay.
if "%SCOPE%"=="machine" echo Run uninstall.cmd as an administrator.
goto stop
:notremoved
echo %TO%%STAYS% could not be removed.
goto stop
:stop
call :stay
exit /b 1
