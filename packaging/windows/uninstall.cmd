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
echo There is no switch "%~1". Use uninstall.cmd [/machine] [/64] [/quiet].
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
rem In a command prompt of 32 bit ProgramFiles is the folder of the 32-bit programs.
set "PROGRAMS=%ProgramFiles(x86)%"
if "%NAME%"=="Corvane64" set "PROGRAMS=%ProgramW6432%"
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
if not exist "%TO%corvane.dll" goto lost
rem While Visual Basic uses the library it cannot be written, not even as it is; then nothing changes.
set "COPY=%TEMP%\corvane-%RANDOM%%RANDOM%.tmp"
attrib -r "%TO%corvane.dll" >nul 2>nul
copy /y "%TO%corvane.dll" "%COPY%" >nul 2>nul
copy /y "%COPY%" "%TO%corvane.dll" >nul 2>nul
set "INUSE=%errorlevel%"
del /f /q "%COPY%" 2>nul
if not "%INUSE%"=="0" goto inuse

set "HOW=/s /u"
if "%SCOPE%"=="machine" set "HOW=/s /u /n /i:machine"
start "" /wait "%REGISTRAR%" %HOW% "%TO%corvane.dll"
rem A program that crashed ended with a negative number.
if "%errorlevel%"=="0" goto settings
rem A library of 64 bit is refused by the 32-bit program.
start "" /wait "%WIDE%" %HOW% "%TO%corvane.dll"
if not "%errorlevel%"=="0" goto notunregistered
goto settings

rem The library went before it was unregistered: what names it still is taken away for it. Classes of 32-bit and of 64-bit
rem programs stand apart, each program named reg.exe sees those of its own width.
:lost
set "STAYS="
set "USER=HKEY_CURRENT_USER"
set "ROOT=%USER%"
if "%SCOPE%"=="machine" set "ROOT=HKEY_LOCAL_MACHINE"
set "CLASSES=%ROOT%\Software\Classes"
set "CLASS=CLSID\{8C3B7E52-4D1F-4B7A-9E65-2F0C61A7D94B}"
set "VERSIONS=%USER%\Software\Microsoft\Visual Basic"
set "REG=%SystemRoot%\System32\reg.exe"
set "OTHERREG=%SystemRoot%\SysWOW64\reg.exe"
if exist "%SystemRoot%\Sysnative\reg.exe" set "OTHERREG=%SystemRoot%\Sysnative\reg.exe"
if not exist "%OTHERREG%" set "OTHERREG=%REG%"
call :forget "%REG%"
call :forget "%OTHERREG%"
if defined STAYS goto notunregistered
call :has %ROOT%
if errorlevel 1 "%REG%" delete "%CLASSES%\corvane.Connect" /f >nul 2>nul
call :has %USER%
if errorlevel 1 call :has HKEY_LOCAL_MACHINE
if not errorlevel 1 goto settings
"%REG%" delete "%VERSIONS%\6.0\Addins\corvane.Connect" /f >nul 2>nul
call :clear "%REG%" "%VERSIONS%\6.0\Addins"
call :clear "%REG%" "%VERSIONS%\6.0"
call :clear "%REG%" "%VERSIONS%"

:settings
rem Another Corvane of this user still needs them.
reg query "HKCU\Software\Microsoft\Visual Basic\6.0\Addins\corvane.Connect" >nul 2>nul
if "%errorlevel%"=="0" goto remove
set "SETTINGS=HKEY_CURRENT_USER\Software\VB and VBA Program Settings"
reg delete "%SETTINGS%\corvane" /f >nul 2>nul
call :clear reg "%SETTINGS%"

:remove
set "STAYS="
for /f "usebackq delims=" %%F in ("%TO%files.txt") do call :removeone "%%F"
if exist "%TO%installed.txt" for /f "usebackq tokens=1,2 delims=*" %%F in ("%TO%installed.txt") do call :removeours "%%F" "%%G"
for %%D in (Icons Pictures Wizards) do rmdir "%TO%WorkShop\%%D" 2>nul
rmdir "%TO%WorkShop" 2>nul
rem The next run needs scope.txt, installed.txt and files.txt.
if defined STAYS goto notremoved
del /f /q "%TO%installed.txt" 2>nul
del /f /q "%TO%scope.txt" 2>nul
del /f /q "%TO%files.txt" 2>nul
echo Corvane is removed. If files of your own are in "%TO%", they stay there.
call :stay
rem One line to the end: after the first command this file is gone.
del /f /q "%TO%uninstall.cmd" & rmdir "%TO%" 2>nul & exit /b 0

:removeone
if "%~1"=="files.txt" exit /b 0
if "%~1"=="uninstall.cmd" exit /b 0
if not exist "%TO%%~1" exit /b 0
del /f /q "%TO%%~1" 2>nul
if exist "%TO%%~1" set "STAYS=%~1"
exit /b 0

rem A file of the library that is as it was installed; one that was changed is the user's.
:removeours
if not exist "%TO%%~1" exit /b 0
for %%F in ("%TO%%~1") do if not "%%~zF %%~tF"=="%~2" exit /b 0
del /f /q "%TO%%~1" 2>nul
if exist "%TO%%~1" set "STAYS=%~1"
exit /b 0

:forget
set "LINE="
for /f "delims=" %%L in ('%~1 query "%CLASSES%\%CLASS%\InprocServer32" /ve 2^>nul') do set "LINE=%%L"
if not defined LINE exit /b 0
set "LINE=%LINE:*REG_SZ    =%"
if /i not "%LINE%"=="%TO%corvane.dll" exit /b 0
"%~1" delete "%CLASSES%\%CLASS%" /f >nul 2>nul
if errorlevel 1 set "STAYS=1"
call :clear "%~1" "%CLASSES%\CLSID"
exit /b 0

rem A key that programs share: it goes when it was read, and nothing is in it.
:clear
set "READ="
set "USED="
for /f "delims=" %%L in ('%~1 query %2 2^>nul ^&^& echo read') do (
  if "%%L"=="read" (set "READ=1") else if not "%%L"=="%~2" set "USED=1"
)
if defined READ if not defined USED "%~1" delete %2 /f >nul 2>nul
exit /b 0

rem 0 when a root has the class for programs of any width
:has
"%REG%" query "%1\Software\Classes\%CLASS%" >nul 2>nul
if errorlevel 1 "%OTHERREG%" query "%1\Software\Classes\%CLASS%" >nul 2>nul
exit /b %errorlevel%

:stay
if not defined QUIET pause
exit /b 0

:nothing
echo Corvane is not installed in "%TO%".
goto stop
:inuse
echo "%TO%corvane.dll" is in use or may not be written. Close Visual Basic and run uninstall.cmd again.
goto administrator
:notunregistered
echo Corvane could not be unregistered, so its files stay.
goto administrator
:notremoved
echo "%TO%%STAYS%" could not be removed. Run uninstall.cmd again when no program uses it.
:administrator
if "%SCOPE%"=="machine" echo Run uninstall.cmd as an administrator.
:stop
call :stay
exit /b 1
