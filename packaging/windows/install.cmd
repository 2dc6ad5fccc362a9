@echo off
rem install.cmd [/machine] [/64] [/quiet]: copies Corvane and registers it with Visual Basic 6; see INSTALL.txt.
rem Ends with 0, 1 when it could not be installed, 2 for a switch that it does not know.
setlocal
set "FROM=%~dp0"
set "MACHINE="
set "BITS=32"
set "QUIET="

:switches
if "%~1"=="" goto place
if /i "%~1"=="/machine" goto machine
if /i "%~1"=="/64" goto wide
if /i "%~1"=="/quiet" goto quiet
echo There is no switch "%~1". Use install.cmd [/machine] [/64] [/quiet].
exit /b 2
:machine
set "MACHINE=1"
shift
goto switches
:wide
set "BITS=64"
shift
goto switches
:quiet
set "QUIET=1"
shift
goto switches

:place
set "NAME=Corvane"
if "%BITS%"=="64" set "NAME=Corvane64"
if not defined LOCALAPPDATA set "LOCALAPPDATA=%APPDATA%"
set "TO=%LOCALAPPDATA%\%NAME%"
set "SCOPE=user"
if not defined MACHINE goto registrar
set "SCOPE=machine"
rem In a command prompt of 32 bit ProgramFiles is the folder of the 32-bit programs.
set "PROGRAMS=%ProgramFiles(x86)%"
if "%BITS%"=="64" set "PROGRAMS=%ProgramW6432%"
if not defined PROGRAMS set "PROGRAMS=%ProgramFiles%"
set "TO=%PROGRAMS%\%NAME%"

:registrar
if /i "%FROM%"=="%TO%\" goto itself
set "LIBRARY=%FROM%corvane.dll"
if "%BITS%"=="64" set "LIBRARY=%FROM%x64\corvane.dll"
set "REGISTRAR=%SystemRoot%\System32\regsvr32.exe"
if "%BITS%"=="32" if exist "%SystemRoot%\SysWOW64\regsvr32.exe" set "REGISTRAR=%SystemRoot%\SysWOW64\regsvr32.exe"
if "%BITS%"=="64" if exist "%SystemRoot%\Sysnative\regsvr32.exe" set "REGISTRAR=%SystemRoot%\Sysnative\regsvr32.exe"

if not exist "%FROM%files.txt" goto incomplete
if not exist "%FROM%userfiles.txt" goto incomplete
if not exist "%LIBRARY%" goto incomplete
if not exist "%TO%\" mkdir "%TO%" 2>nul
set "FIRST=1"
if exist "%TO%\scope.txt" set "FIRST="

rem First the library: while Visual Basic uses the old one nothing changes.
call :copy "%LIBRARY%" "%TO%\corvane.dll"
if not "%errorlevel%"=="0" if exist "%TO%\corvane.dll" goto inuse
if not "%errorlevel%"=="0" goto nofolder
set "COPIED_corvane.dll=1"
set "FAILED="
for /f "usebackq delims=" %%F in ("%FROM%files.txt") do call :copyone "%%F"
if defined FAILED goto notcopied
rem installed.txt tells size and time of each file of the library as it was put here: one that differs is the user's.
del /f /q "%TO%\installed.new" 2>nul
for /f "usebackq delims=" %%F in ("%FROM%userfiles.txt") do call :placeone "%%F"
if exist "%TO%\installed.txt" for /f "usebackq tokens=1 delims=*" %%F in ("%TO%\installed.txt") do call :keepone "%%F"
if exist "%TO%\installed.new" move /y "%TO%\installed.new" "%TO%\installed.txt" >nul 2>nul
if defined FAILED goto notcopied
echo %SCOPE%>"%TO%\scope.txt"
if not exist "%TO%\scope.txt" set "FAILED=scope.txt"
if defined FAILED goto notcopied

if defined MACHINE start "" /wait "%REGISTRAR%" /s /n /i:machine "%TO%\corvane.dll"
if not defined MACHINE start "" /wait "%REGISTRAR%" /s "%TO%\corvane.dll"
rem A program that crashed ended with a negative number.
if not "%errorlevel%"=="0" goto notregistered

echo Corvane is installed in "%TO%".
echo Visual Basic 6 loads it when it starts the next time. The Add-In Manager unloads "Corvane - 2000".
call :stay
exit /b 0

:copyone
if "%~1"=="corvane.dll" exit /b 0
call :copy "%FROM%%~1" "%TO%\%~1"
if "%errorlevel%"=="0" (set "COPIED_%~1=1") else set "FAILED=%~1"
exit /b 0

rem A file of the library goes where there is none, or one that is as it was installed.
:placeone
call :stampof "%TO%\%~1"
call :isours "%~1"
if exist "%TO%\%~1" if not defined OURS goto yours
for %%D in ("%TO%\%~1") do if not exist "%%~dpD" mkdir "%%~dpD" 2>nul
call :copy "%FROM%%~1" "%TO%\%~1"
if not "%errorlevel%"=="0" set "FAILED=%~1"
if defined FAILED exit /b 0
set "PLACED_%~1=1"
set "COPIED_%~1=1"
call :stampof "%TO%\%~1"
>>"%TO%\installed.new" echo %~1*%STAMP%
exit /b 0
:yours
set "PLACED_%~1=1"
echo "%TO%\%~1" is yours and stays as it is.
exit /b 0

rem What an older Corvane brought, and this one does not, stays known as long as it is as it was.
:keepone
if defined PLACED_%~1 exit /b 0
call :stampof "%TO%\%~1"
call :isours "%~1"
if defined OURS >>"%TO%\installed.new" echo %~1*%STAMP%
exit /b 0

rem Size and time of a file; nothing where there is none.
:stampof
set "STAMP="
if exist "%~1" set "STAMP=%~z1 %~t1"
exit /b 0

:isours
set "OURS="
if not exist "%TO%\installed.txt" exit /b 0
for /f "usebackq delims=" %%L in ("%TO%\installed.txt") do if /i "%%L"=="%~1*%STAMP%" set "OURS=1"
exit /b 0

rem What was copied from a medium that cannot be written may not be written itself.
:copy
if exist "%~2" attrib -r "%~2" >nul 2>nul
copy /y "%~1" "%~2" >nul 2>nul
exit /b %errorlevel%

rem An installation that was not there before leaves nothing behind when it fails.
:takeback
if not defined FIRST exit /b 0
for /f "usebackq delims=" %%F in ("%FROM%files.txt") do if defined COPIED_%%F del /f /q "%TO%\%%F" 2>nul
for /f "usebackq delims=" %%F in ("%FROM%userfiles.txt") do if defined COPIED_%%F del /f /q "%TO%\%%F" 2>nul
for %%D in (Icons Pictures Wizards) do rmdir "%TO%\WorkShop\%%D" 2>nul
rmdir "%TO%\WorkShop" 2>nul
del /f /q "%TO%\installed.txt" 2>nul
del /f /q "%TO%\scope.txt" 2>nul
rmdir "%TO%" 2>nul
exit /b 0

:stay
if not defined QUIET pause
exit /b 0

:itself
echo Corvane cannot be installed from the folder "%TO%" into itself. Unpack the zip into another one.
goto stop
:incomplete
echo Files are missing beside install.cmd. Unpack the whole zip into a folder and run install.cmd from there.
goto stop
:nofolder
echo The folder "%TO%" could not be made, or not be written.
goto administrator
:inuse
echo "%TO%\corvane.dll" is in use or may not be written. Close Visual Basic and run install.cmd again.
goto administrator
:notcopied
echo "%TO%\%FAILED%" could not be written. Nothing was registered.
call :takeback
goto administrator
:notregistered
echo Corvane could not be registered.
call :takeback
:administrator
if defined MACHINE echo Run install.cmd /machine as an administrator.
:stop
call :stay
exit /b 1
