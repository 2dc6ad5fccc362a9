VERSION 5.00
Begin VB.UserControl BinMap 
   BackColor       =   &H80000005&
   ClientHeight    =   1695
   ClientLeft      =   0
   ClientTop       =   0
   ClientWidth     =   5055
   ScaleHeight     =   1695
   ScaleWidth      =   5055
   ToolboxBitmap   =   "BinMap.ctx":0000
End
Attribute VB_Name = "BinMap"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = True
Attribute VB_PredeclaredId = False
Attribute VB_Exposed = False
Option Explicit

' A rack as a grid of bins; the chosen one is filled.

Public Event BinClick(ByVal address As String)
Attribute BinClick.VB_Description = "The user clicked a bin."

Private Const DEFAULT_SHELVES As Integer = 6
Private Const DEFAULT_PLACES As Integer = 12

Private mShelves As Integer
Private mPlaces As Integer
Private mFillColor As OLE_COLOR
Private mRack As String
Private mShelf As Integer, mPlace As Integer

Public Property Get Shelves() As Integer
Attribute Shelves.VB_Description = "How many shelves the rack has."
Attribute Shelves.VB_ProcData.VB_Invoke_Property = "RackPage;Behavior"
    Shelves = mShelves
End Property

Public Property Let Shelves(ByVal New_Shelves As Integer)
    If New_Shelves < 1 Or New_Shelves > 20 Then Err.Raise 380
    mShelves = New_Shelves
    PropertyChanged "Shelves"
    UserControl.Refresh
End Property

Public Property Get Places() As Integer
Attribute Places.VB_ProcData.VB_Invoke_Property = "RackPage;Behavior"
    Places = mPlaces
End Property

Public Property Let Places(ByVal New_Places As Integer)
    If New_Places < 1 Or New_Places > 40 Then Err.Raise 380
    mPlaces = New_Places
    PropertyChanged "Places"
    UserControl.Refresh
End Property

Public Property Get FillColor() As OLE_COLOR
    FillColor = mFillColor
End Property

Public Property Let FillColor(ByVal New_FillColor As OLE_COLOR)
    mFillColor = New_FillColor
    PropertyChanged "FillColor"
    UserControl.Refresh
End Property

Public Property Get Font() As Font
Attribute Font.VB_UserMemId = -512
    Set Font = UserControl.Font
End Property

Public Property Set Font(ByVal New_Font As Font)
    Set UserControl.Font = New_Font
    PropertyChanged "Font"
    UserControl.Refresh
End Property

Public Sub Show(ByVal address As String)
    Dim bin As BinAddress
    If ParseBin(address, bin) Then
        mRack = bin.Rack
        mShelf = bin.Shelf
        mPlace = bin.Place
    Else
        mRack = "A"
        mShelf = 0
        mPlace = 0
    End If
    UserControl.Refresh
End Sub

Private Sub UserControl_InitProperties()
    mShelves = DEFAULT_SHELVES
    mPlaces = DEFAULT_PLACES
    mFillColor = vbHighlight
    mRack = "A"
End Sub

Private Sub UserControl_MouseUp(Button As Integer, Shift As Integer, X As Single, Y As Single)
    Dim shelf As Integer, place As Integer
    If Button <> vbLeftButton Then Exit Sub
    shelf = mShelves - Int(Y / CellHeight)
    place = Int(X / CellWidth) + 1
    If shelf >= 1 And shelf <= mShelves And place >= 1 And place <= mPlaces Then
        mShelf = shelf: mPlace = place
        UserControl.Refresh
        RaiseEvent BinClick(mRack & "-" & Format$(shelf, "00") & "-" & Format$(place, "00"))
    End If
End Sub

Private Sub UserControl_Paint()
    Dim shelf As Integer, place As Integer, left_ As Single, top_ As Single

    For shelf = 1 To mShelves
        For place = 1 To mPlaces
            left_ = (place - 1) * CellWidth
            top_ = (mShelves - shelf) * CellHeight
            If shelf = mShelf And place = mPlace Then
                UserControl.Line (left_, top_)-Step(CellWidth, CellHeight), mFillColor, BF
            Else
                UserControl.Line (left_, top_)-Step(CellWidth, CellHeight), vb3DShadow, B
            End If
        Next place
    Next shelf
End Sub

Private Sub UserControl_ReadProperties(PropBag As PropertyBag)
    mShelves = PropBag.ReadProperty("Shelves", DEFAULT_SHELVES)
    mPlaces = PropBag.ReadProperty("Places", DEFAULT_PLACES)
    mFillColor = PropBag.ReadProperty("FillColor", vbHighlight)
    Set UserControl.Font = PropBag.ReadProperty("Font", Ambient.Font)
    mRack = "A"
End Sub

Private Sub UserControl_WriteProperties(PropBag As PropertyBag)
    Call PropBag.WriteProperty("Shelves", mShelves, DEFAULT_SHELVES)
    Call PropBag.WriteProperty("Places", mPlaces, DEFAULT_PLACES)
    Call PropBag.WriteProperty("FillColor", mFillColor, vbHighlight)
    Call PropBag.WriteProperty("Font", UserControl.Font, Ambient.Font)
End Sub

Private Property Get CellWidth() As Single
    CellWidth = (UserControl.ScaleWidth - 15) / mPlaces
End Property

Private Property Get CellHeight() As Single
    CellHeight = (UserControl.ScaleHeight - 15) / mShelves
End Property
