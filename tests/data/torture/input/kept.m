bem = { output = project
        body = 1 }
hydroBody1.bemInput = { meshName = box.dat
                        keepMesh = 1 }
