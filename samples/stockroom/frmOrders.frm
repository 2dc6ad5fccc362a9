VERSION 5.00
Begin VB.Form frmOrders 
   Caption         =   "Orders"
   ClientHeight    =   4335
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   8175
   LinkTopic       =   "Form1"
   MDIChild        =   -1  'True
   ScaleHeight     =   4335
   ScaleWidth      =   8175
   Begin VB.CommandButton cmdReceive 
      Caption         =   "&Goods received..."
      Enabled         =   0   'False
      Height          =   375
      Left            =   6720
      TabIndex        =   4
      Top             =   3840
      Width           =   1335
   End
   Begin VB.CommandButton cmdSend 
      Caption         =   "&Send"
      Enabled         =   0   'False
      Height          =   375
      Left            =   5400
      TabIndex        =   3
      Top             =   3840
      Width           =   1215
   End
   Begin VB.Label lblTotal 
      Height          =   255
      Left            =   120
      TabIndex        =   2
      Top             =   3900
      Width           =   2775
   End
   Begin VB.ListBox lstLines 
      Height          =   3570
      Left            =   3000
      MultiSelect     =   2  'Extended
      TabIndex        =   1
      Top             =   120
      Width           =   5055
   End
   Begin VB.ListBox lstOrders 
      Height          =   3570
      Left            =   120
      Sorted          =   -1  'True
      TabIndex        =   0
      Top             =   120
      Width           =   2775
   End
End
Attribute VB_Name = "frmOrders"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private WithEvents mOrder As clsOrder
Attribute mOrder.VB_VarHelpID = -1
Dim mLoading As Boolean

Public Sub FillOrders()
    Dim order As clsOrder, keep As Long

    mLoading = True
    If Not mOrder Is Nothing Then keep = mOrder.Number
    lstOrders.Clear
    For Each order In Store.Orders
        lstOrders.AddItem Format$(order.Number, "0000") & "  " & order.Supplier.ShortName & "  " & order.StateText
        lstOrders.ItemData(lstOrders.NewIndex) = order.Number
        If order.Number = keep Then lstOrders.ListIndex = lstOrders.NewIndex
    Next
    mLoading = False
    FillLines
End Sub

Private Sub FillLines()
    Dim i As Integer
    lstLines.Clear
    If mOrder Is Nothing Then
        lblTotal.Caption = ""
        cmdSend.Enabled = False
        cmdReceive.Enabled = False
        Exit Sub
    End If
    For i = 1 To mOrder.LineCount
        lstLines.AddItem mOrder.LineText(i)
    Next i
    lblTotal.Caption = "Total " & PriceText(mOrder.Total)
    cmdSend.Enabled = (mOrder.State = osOpen) And (mOrder.LineCount > 0)
    cmdReceive.Enabled = mOrder.State = osSent Or mOrder.State = osPartlyReceived
End Sub

Private Sub cmdReceive_Click()
    Dim answer As String, i As Integer

    If mOrder Is Nothing Then Exit Sub
    For i = 1 To mOrder.LineCount
        If lstLines.Selected(i - 1) Then
AskAgain:
            answer = InputBox("How much came of" & vbCrLf & Replace(mOrder.LineText(i), vbTab, "  ") & "?", "Goods received", "0")
            If Len(answer) = 0 Then Exit For
            If Not IsNumeric(answer) Then
                If MsgBox("'" & answer & "' is no number.", vbRetryCancel) = vbRetry Then GoTo AskAgain
                Exit For
            End If
            If CDbl(answer) > 0 Then If mOrder.Receive(i, CDbl(answer)) Then mdiMain.ShowStatus "Order complete"
        End If
    Next i
    FillOrders
End Sub

Private Sub cmdSend_Click()
    Dim number As Long
    If mOrder Is Nothing Then Exit Sub
    number = mOrder.Number
    mOrder.Send
    PrintOrder mOrder
    WriteLog "order " & number & " sent", Me.Name
End Sub

Private Sub Form_Load()
    FillOrders
End Sub

Private Sub lstOrders_Click()
    If lstOrders.ListIndex < 0 Or mLoading Then Exit Sub
    Set mOrder = Store.Orders(CStr(lstOrders.ItemData(lstOrders.ListIndex)))
    FillLines
End Sub

Private Sub mOrder_Changed()
    FillOrders
End Sub

' Prints the order as a letter. The old way, with line numbers: Erl says where it broke.
Private Sub PrintOrder(order As clsOrder)
    Dim i As Integer, page As Integer
10  On Error GoTo NoPrinter
20  Printer.FontName = "Arial": Printer.FontSize = 11
30  page = 1
40  GoSub Heading
50  For i = 1 To order.LineCount
60      If Printer.CurrentY > Printer.ScaleHeight - 1440 Then
70          Printer.NewPage
80          page = page + 1
90          GoSub Heading
        End If
100     Printer.Print Tab(5); Replace(order.LineText(i), vbTab, "    ")
110 Next i
120 Printer.Print
130 Printer.Print Tab(5); "Please deliver within " & order.Supplier.DeliveryDays & " days."
140 Printer.EndDoc
150 Exit Sub

Heading:
    Printer.Print order.Supplier.AddressLines
    Printer.Print
    Printer.Print "Order " & order.Number & ", " & Format$(order.OrderDate, "Long Date") & IIf(page > 1, ", page " & page, "")
    Printer.Print
    Return

NoPrinter:
    MsgBox "The order was not printed: " & Err.Description & " (step " & Erl & ")", vbExclamation, APP_TITLE
End Sub
